#include "operate.h"

#include "screen.h"

// begin operate
#include <brel_common_qt/remoteMelvoxDevice.h>
#include <melvox_ui/melvoxUiSolutionControl.h>

#include <QApplication>

/** Shows one page until the operator leaves. The proxy takes the port over. */
int operate(QApplication& application, brel_common_qt::remotePort_t* port)
{
    screen_t screen;                                               // before the first dialog is shown
    brel_common_qt::remoteMelvoxDevice_t receiver(port);           // before the first page, and longer than every page
    brel_common_qt_gui::melvoxUiSolutionControl_t page(&receiver); // a QWidget
    screen.showPage(&page);
    screen.show();
    receiver.queryAll();
    return application.exec();
}
// end
