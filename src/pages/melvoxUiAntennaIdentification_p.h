#ifndef MELVOX_UI_ANTENNA_IDENTIFICATION_P_H
#define MELVOX_UI_ANTENNA_IDENTIFICATION_P_H

#include "melvox_ui/melvoxUiAntennaIdentification.h"

#include "ui_melvoxUiAntennaIdentification.h"

#include <QBitArray>

namespace brel_common_qt_gui
{

class dialogPage_t;
class melvoxUiAntennaConfigDialog_t;

/** The row of one antenna. */
class MELVOX_UI_HIDDEN melvoxUiAntennaIdentification_t::item_t : public QTreeWidgetItem
{
public:
    explicit item_t(brel_common_qt::melvoxAntenna_t antenna);
    ~item_t();

    brel_common_qt::melvoxAntenna_t antenna() const { return m_antenna; }
    brel_common_qt::melvoxAntennaInfo_t const& info() const { return m_info; }
    brel_common_qt::melvoxAntennaHeight_t const& height() const { return m_height; }

    void setInfo(brel_common_qt::melvoxAntennaInfo_t const& info);
    void setHeight(brel_common_qt::melvoxAntennaHeight_t const& height);

private:
    brel_common_qt::melvoxAntenna_t m_antenna;
    brel_common_qt::melvoxAntennaInfo_t m_info;
    brel_common_qt::melvoxAntennaHeight_t m_height;
};

struct MELVOX_UI_HIDDEN melvoxUiAntennaIdentification_t::privateData_t
{
    explicit privateData_t(brel_common_qt::remoteMelvoxDevice_t* device_);

    brel_common_qt::remoteMelvoxDevice_t* device;
    Ui_melvoxUiAntennaIdentification ui;
    QBitArray setUi;
    QPushButton* configureButton;
    melvoxUiAntennaConfigDialog_t* configDialog;
    dialogPage_t* configDialogPage; //!< owned
};

} // namespace brel_common_qt_gui

#endif
