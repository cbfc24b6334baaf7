#ifndef MELVOX_UI_ANTENNA_CONFIG_DIALOG_H
#define MELVOX_UI_ANTENNA_CONFIG_DIALOG_H

#include "melvox_ui/melvoxUiExport.h"

#include "brel_common_qt/melvoxAntenna.h"

#include <QDialog>

namespace brel_common_qt
{
class remoteMelvoxDevice_t;
}

namespace brel_common_qt_gui
{

/** Edits what one of the two antennas is and how it is mounted: name, serial number, setup id, and in millimetres slant
 *  range and radius. Load it with setAntenna(), setInfo() and setHeight() before each showing. The other antenna's
 *  records are sent along as the receiver told them. The receiver must outlive the dialog. */
class MELVOX_UI_EXPORT melvoxUiAntennaConfigDialog_t : public QDialog
{
    Q_OBJECT

public:
    melvoxUiAntennaConfigDialog_t(brel_common_qt::remoteMelvoxDevice_t* device, QWidget* parent);
    ~melvoxUiAntennaConfigDialog_t();

public slots:
    void setAntenna(brel_common_qt::melvoxAntenna_t antenna);
    void setInfo(brel_common_qt::melvoxAntennaInfo_t const& info);
    void setHeight(brel_common_qt::melvoxAntennaHeight_t const& height);
    /** Sends the records and closes; or reports all that is wrong with them, sends nothing and stays open. */
    void submit();

    /** The names that can be chosen come from the receiver one by one, also while the dialog is shown. */
    void initAntList();
    void addAntName(QString const& name);

    void checkAdjust();

private:
    Q_DISABLE_COPY(melvoxUiAntennaConfigDialog_t)

    struct privateData_t;

    privateData_t* m_data;
};

} // namespace brel_common_qt_gui

#endif
