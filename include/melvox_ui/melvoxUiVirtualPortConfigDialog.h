#ifndef MELVOX_UI_VIRTUAL_PORT_CONFIG_DIALOG_H
#define MELVOX_UI_VIRTUAL_PORT_CONFIG_DIALOG_H

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

/** The network settings of one Ethernet virtual port. The receiver must outlive the dialog.
 *
 *  Whoever shows it tells it the port and its settings before each showing, and never shows it for the port through
 *  which the display itself talks. */
class MELVOX_UI_EXPORT melvoxUiVirtualPortConfigDialog_t : public QDialog
{
    Q_OBJECT

public:
    melvoxUiVirtualPortConfigDialog_t(brel_common_qt::remoteMelvoxDevice_t* device, QWidget* parent);
    ~melvoxUiVirtualPortConfigDialog_t();

    void setPort(brel_common_qt::melvoxPort_t port);
    void setConfig(brel_common_qt::melvoxVcomConfig_t const& config);

public slots:
    /** Address and ports are checked in every mode, also while they cannot be edited. */
    void submit();
    void checkMode();

private:
    Q_DISABLE_COPY(melvoxUiVirtualPortConfigDialog_t)

    struct privateData_t;
    privateData_t* m_data;
};

} // namespace brel_common_qt_gui

#endif
