#ifndef MELVOX_UI_PHYSICAL_PORT_CONFIG_DIALOG_H
#define MELVOX_UI_PHYSICAL_PORT_CONFIG_DIALOG_H

#include "melvox_ui/melvoxUiExport.h"

#include "brel_common_qt/melvoxPort.h"
#include "brel_common_qt/melvoxPortConfig.h"

#include <QDialog>

namespace brel_common_qt
{
class remoteMelvoxDevice_t;
}

namespace brel_common_qt_gui
{

/** The line settings of one physical port. Those of the port through which the display itself talks are changed by the
 *  display's own link, so that both ends of the line move together. The receiver must outlive the dialog.
 *
 *  Whoever shows it tells it the port, its serial mode and its settings before each showing. */
class MELVOX_UI_EXPORT melvoxUiPhysicalPortConfigDialog_t : public QDialog
{
    Q_OBJECT

public:
    melvoxUiPhysicalPortConfigDialog_t(brel_common_qt::remoteMelvoxDevice_t* device, QWidget* parent);
    ~melvoxUiPhysicalPortConfigDialog_t();

    void setPort(brel_common_qt::melvoxPort_t port);
    void setRs232Mode(bool rs232);
    /** A rate that is not offered leaves none chosen. The number of data bits is not taken over: it is always 8. */
    void setConfig(brel_common_qt::melvoxSerialPortConfig_t const& config);

public slots:
    void submit();

private:
    Q_DISABLE_COPY(melvoxUiPhysicalPortConfigDialog_t)

    struct privateData_t;

    void configureOwnLink(brel_common_qt::melvoxSerialPortConfig_t const& config);

    privateData_t* m_data;
};

} // namespace brel_common_qt_gui

#endif
