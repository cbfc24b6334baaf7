#ifndef SAMPLES_SCREEN_H
#define SAMPLES_SCREEN_H

#include "brel_common_qt_gui/dialogPage.h"

#include <QDialog>
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
        addWidget(page);
        setCurrentWidget(page);
    }

    void showDialog(QDialog* dialog) override
    {
        // One that is shown already comes to the front.
        removeWidget(dialog);
        dialog->setWindowFlags(Qt::Widget);
        addWidget(dialog);
        setCurrentWidget(dialog);
        dialog->show();
        connect(dialog, SIGNAL(finished(int)), this, SLOT(leave()), Qt::UniqueConnection);
    }

private slots:
    void leave()
    {
        QDialog* const dialog = static_cast<QDialog*>(sender());
        // Its owner may have shown it again, out of the same signal.
        if (!dialog->isHidden())
            return;
        removeWidget(dialog);
        setCurrentIndex(count() - 1);
    }
};
// end

#endif
