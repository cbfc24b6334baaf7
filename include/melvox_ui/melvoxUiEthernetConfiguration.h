#ifndef MELVOX_UI_ETHERNET_CONFIGURATION_H
#define MELVOX_UI_ETHERNET_CONFIGURATION_H

#include "melvox_ui/melvoxUiExport.h"

#include <QWidget>

namespace brel_common_qt
{
class remoteMelvoxDevice_t;
}

namespace brel_common_qt_gui
{

class errorText_t;

/** The addresses of the receiver's cable Ethernet interface: from DHCP, or set by hand. The receiver must outlive the
 *  page.
 *
 *  A change interrupts the network link, the display's own included, so Apply asks first. Unlike on other pages every
 *  report of the receiver is loaded into the editors, over what the operator was typing. */
class MELVOX_UI_EXPORT melvoxUiEthernetConfiguration_t : public QWidget
{
    Q_OBJECT

public:
    explicit melvoxUiEthernetConfiguration_t(brel_common_qt::remoteMelvoxDevice_t* device);
    ~melvoxUiEthernetConfiguration_t();

public slots:
    /** Sends without a question. */
    void submit();
    void reset();
    void query();

    void checkDhcp();
    void updateConfig();
    void resetConfig();
    void submitConfig(brel_common_qt_gui::errorText_t& err);
    void showEthernetPage();
    void ethernetWarningDialogFinished(int result);
    /** Asks, and submits after a yes. */
    void verifySubmit();

private:
    Q_DISABLE_COPY(melvoxUiEthernetConfiguration_t)

    struct privateData_t;

    void createButtons();
    void createEdits();
    void createWarning();
    void showConfig();

    privateData_t* m_data;
};

} // namespace brel_common_qt_gui

#endif
