#ifndef MELVOX_UI_SOLUTION_CONTROL_P_H
#define MELVOX_UI_SOLUTION_CONTROL_P_H

#include "melvox_ui/melvoxUiSolutionControl.h"

#include "brel_common_qt/melvoxSolution.h"
#include "ui_melvoxUiSolutionControl.h"

#include <QBitArray>
#include <QList>

namespace brel_common_qt_gui
{

/** The row of one correction input: whether it is used, and how old its corrections may be. */
class MELVOX_UI_HIDDEN melvoxUiSolutionControl_t::corrUi_t
{
public:
    corrUi_t(brel_common_qt::melvoxCorrectionType_t type, QLabel* enabledLabel, QComboBox* enabledCombo,
             QLabel* maxAgeLabel, QLineEdit* maxAgeLineEdit);

    void updateEnabled(brel_common_qt::remoteMelvoxDevice_t* device);
    void resetEnabled(brel_common_qt::remoteMelvoxDevice_t* device);
    void submitEnabled(brel_common_qt::remoteMelvoxDevice_t* device);

    void updateMaxAge(brel_common_qt::remoteMelvoxDevice_t* device);
    void resetMaxAge(brel_common_qt::remoteMelvoxDevice_t* device);
    void submitMaxAge(brel_common_qt::remoteMelvoxDevice_t* device);

private:
    brel_common_qt::melvoxCorrectionType_t m_type;
    QLabel* m_enabledLabel;
    QComboBox* m_enabledCombo;
    bool m_setEnabled; //!< the combo was filled from the receiver once
    QLabel* m_maxAgeLabel;
    QLineEdit* m_maxAgeLineEdit;
    bool m_setMaxAge; //!< the edit was filled from the receiver once
};

struct MELVOX_UI_HIDDEN melvoxUiSolutionControl_t::privateData_t
{
    explicit privateData_t(brel_common_qt::remoteMelvoxDevice_t* device_);
    ~privateData_t();

    brel_common_qt::remoteMelvoxDevice_t* device;
    Ui_melvoxUiSolutionControl ui;
    QList<corrUi_t*> corrUi; //!< owned
    QBitArray setUi;
    // Kept for satellites that a receiver might let one leave out; none does.
    QList<QLabel*> prnLabels;
    QList<QLineEdit*> prnLineEdits;
};

} // namespace brel_common_qt_gui

#endif
