#ifndef MELVOX_DISPLAY_NAVIGATION_H
#define MELVOX_DISPLAY_NAVIGATION_H

#include "display/pageRegistry.h"

#include <QMap>
#include <QScrollArea>

class QButtonGroup;
class QPushButton;

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

signals:
    void chosen(QString const& name);

private:
    void addPage(QWidget* list, pageEntry_t const& page);

    QButtonGroup* m_group;
    QMap<QString, QPushButton*> m_buttons;
    QString m_current;
};

} // namespace melvox_display

#endif
