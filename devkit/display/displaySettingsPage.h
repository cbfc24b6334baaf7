#ifndef MELVOX_DISPLAY_DISPLAY_SETTINGS_PAGE_H
#define MELVOX_DISPLAY_DISPLAY_SETTINGS_PAGE_H

#include <QWidget>

class QButtonGroup;
class QLabel;
class QVBoxLayout;

namespace melvox_display
{

/** The display's own settings: the unit of heights and distances and the format of positions. A choice holds at once,
 *  on all pages. */
class displaySettingsPage_t : public QWidget
{
    Q_OBJECT

public:
    explicit displaySettingsPage_t(QWidget* parent = nullptr);

private slots:
    void showSettings();
    void takeUnit(int id);
    void takeFormat(int id);

private:
    void addChoice(QVBoxLayout* layout, QString const& caption, QStringList const& names, QStringList const& texts,
                   QButtonGroup* group, QLabel* example);

    QButtonGroup* m_units;
    QButtonGroup* m_formats;
    QLabel* m_unitExample;
    QLabel* m_formatExample;
};

} // namespace melvox_display

#endif
