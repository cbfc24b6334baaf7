#ifndef MELVOX_UI_NAVIGATION_MODE_P_H
#define MELVOX_UI_NAVIGATION_MODE_P_H

#include "melvox_ui/melvoxUiNavigationMode.h"

#include "brel_common_qt/melvoxNavigation.h"
#include "ui_melvoxUiNavigationMode.h"

#include <QBitArray>
#include <QList>

namespace brel_common_qt_gui
{

/** The row of one constellation. */
class MELVOX_UI_HIDDEN melvoxUiNavigationMode_t::measUseUi_t
{
public:
    /** The name must outlive the row. */
    measUseUi_t(std::string const& measName, QLabel* label, QComboBox* combo);

    void update(brel_common_qt::remoteMelvoxDevice_t* device);
    void reset(brel_common_qt::remoteMelvoxDevice_t* device);

    /** What is chosen, for the table in which the page sends all rows together. Takes the receiver like every row's
     *  submit, but a row alone sends nothing. */
    brel_common_qt::meas_t submit(brel_common_qt::remoteMelvoxDevice_t* device);

private:
    bool isFixed() const;

    std::string const* m_measName;
    QLabel* m_label;
    QComboBox* m_combo;
    bool setUi; //!< the combo was filled from the receiver once
};

struct MELVOX_UI_HIDDEN melvoxUiNavigationMode_t::privateData_t
{
    explicit privateData_t(brel_common_qt::remoteMelvoxDevice_t* device_);
    ~privateData_t();

    brel_common_qt::remoteMelvoxDevice_t* device;
    Ui_melvoxUiNavigationMode ui;
    QList<measUseUi_t*> measUseUi; //!< owned
    QBitArray setUi;
};

} // namespace brel_common_qt_gui

#endif
