#ifndef SAMPLES_SCREEN_H
#define SAMPLES_SCREEN_H

#include "brel_common_qt_gui/dialogPage.h"

#include <QDialog>
#include <QPointer>
#include <QStackedWidget>

// begin screen
/** Shows one page, and on top of it the dialogs that it opens. */
class screen_t : public QStackedWidget, public brel_common_qt_gui::dialogHost_t
{
    Q_OBJECT

public:
    screen_t() { brel_common_qt_gui::dialogPage_t::setHost(this); }
    ~screen_t() { brel_common_qt_gui::dialogPage_t::setHost(0); }

    void showPage(QWidget* page)
    {
        m_page = page;
        addWidget(page);
        setCurrentWidget(page);
    }

    void showDialog(QDialog* dialog) override
    {
        if (indexOf(dialog) < 0)
        {
            dialog->setWindowFlags(Qt::Widget);
            addWidget(dialog);
            connect(dialog, SIGNAL(finished(int)), this, SLOT(leave()), Qt::UniqueConnection);
        }
        // Shown before: it comes to the front.
        setCurrentWidget(dialog);
        dialog->show();
    }

private slots:
    void leave()
    {
        // Hidden, not deleted: its owner shows it again.
        removeWidget(static_cast<QWidget*>(sender()));
        if (m_page)
            setCurrentWidget(m_page);
    }

private:
    QPointer<QWidget> m_page;
};
// end

#endif
