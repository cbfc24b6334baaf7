#ifndef MELVOX_UI_RECEIVER_INFORMATION_H
#define MELVOX_UI_RECEIVER_INFORMATION_H

#include "melvox_ui/melvoxUiExport.h"

#include <QWidget>

#include <string>

namespace brel_common_qt
{
class remoteMelvoxDevice_t;
}

namespace brel_common_qt_gui
{

/** Who the receiver is and what it runs: its names, firmware versions, message lights, Iridium and LTE modem. The LTE
 *  modem can be switched here. Navigation firmware that is too old raises a warning, once each time another version is
 *  told. The receiver must outlive the page. */
class MELVOX_UI_EXPORT melvoxUiReceiverInformation_t : public QWidget
{
    Q_OBJECT

public:
    explicit melvoxUiReceiverInformation_t(brel_common_qt::remoteMelvoxDevice_t* device);
    ~melvoxUiReceiverInformation_t();

public slots:
    void updateProductInfo();
    /** Asks for everything that the receiver can tell. */
    void query();
    void firmwareVersionCheck(std::string const& component, std::string const& version);
    void updateIrdmStat(std::string const& imei, std::string const& provisioningStatus, std::string const& modemStatus);
    void updateLteModemStat(std::string const& rssi, std::string const& networkStatus, std::string const& modemStatus);
    /** Switching on asks the operator first; switching off does not. */
    void toggleLTEModemState();
    void lteModemDialogFinished(int result);

private:
    Q_DISABLE_COPY(melvoxUiReceiverInformation_t)

    struct privateData_t;

    void createLights();
    void createDialogs();
    void connectReceiver();
    void switchLteModem(bool on);

    privateData_t* m_data;
};

} // namespace brel_common_qt_gui

#endif
