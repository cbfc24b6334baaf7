#ifndef MELVOX_UI_CORRECTION_SAT_SELECT_DIALOG_P_H
#define MELVOX_UI_CORRECTION_SAT_SELECT_DIALOG_P_H

#include "melvox_ui/melvoxUiCorrectionSatSelectDialog.h"

#include "brel_common_qt/melvoxCorrections.h"
#include "ui_melvoxUiCorrectionSatSelectDialog.h"

namespace brel_common_qt_gui
{

/** The row of one correction satellite. */
class MELVOX_UI_HIDDEN melvoxUiCorrectionSatSelectDialog_t::satItem_t : public QTreeWidgetItem
{
public:
    explicit satItem_t(brel_common_qt::melvoxCorrectionSat_t const& sat);
    ~satItem_t();

    bool operator<(QTreeWidgetItem const& other) const override;

    unsigned int id() const { return m_id; }
    bool shows(brel_common_qt::melvoxCorrectionSat_t const& sat) const;
    void update(brel_common_qt::melvoxCorrectionSat_t const& sat);

private:
    unsigned int m_id;
    double m_longitude;
    unsigned int m_lookAngle;
    unsigned int m_net; //!< the first net that it belongs to, 0 for none
};

struct MELVOX_UI_HIDDEN melvoxUiCorrectionSatSelectDialog_t::privateData_t
{
    explicit privateData_t(brel_common_qt::remoteMelvoxDevice_t* device_);

    brel_common_qt::remoteMelvoxDevice_t* device;
    Ui_melvoxUiCorrectionSatSelectDialog ui;
};

} // namespace brel_common_qt_gui

#endif
