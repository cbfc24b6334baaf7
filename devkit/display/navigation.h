#ifndef MELVOX_DISPLAY_NAVIGATION_H
#define MELVOX_DISPLAY_NAVIGATION_H

#include "display/pageRegistry.h"

#include <QList>
#include <QMap>
#include <QScrollArea>

class QButtonGroup;
class QPushButton;
class QVBoxLayout;

namespace melvox_display
{

/** The list of pages by subsystem. Subsystems without pages are left out. */
class navigation_t : public QScrollArea
{
    Q_OBJECT

public:
    explicit navigation_t(pageRegistry_t const& pages, QWidget* parent = nullptr);

    /** Marks the page that is shown. */
    void setCurrent(QString const& name);

    /** Two columns for a list that has the whole screen. */
    void setColumns(int count);

signals:
    void chosen(QString const& name);

protected:
    void resizeEvent(QResizeEvent* event) override;

private:
    struct section_t
    {
        QWidget* widget;
        int pages;
    };

    QWidget* createSection(pageRegistry_t const& pages, subsystem_t subsystem);
    void addPage(QWidget* section, pageEntry_t const& page);

    QButtonGroup* m_group;
    QList<section_t> m_sections;
    QVBoxLayout* m_columns[2];
    QMap<QString, QPushButton*> m_buttons;
    QString m_current;
};

} // namespace melvox_display

#endif
