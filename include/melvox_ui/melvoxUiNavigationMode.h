#ifndef MELVOX_UI_NAVIGATION_MODE_H
#define MELVOX_UI_NAVIGATION_MODE_H

#include "melvox_ui/melvoxUiExport.h"

#include <QWidget>

namespace brel_common_qt
{
class remoteMelvoxDevice_t;
}

namespace brel_common_qt_gui
{

class errorText_t;

/** Which constellations' measurements the solution uses, and how much motion it expects. The receiver must outlive the
 *  page. Lives like melvoxUiSolutionControl_t, but the measurement use is always sent in full, also before the receiver
 *  has told it. GPS and BeiDou follow the receiver and cannot be changed here.
 *
 *  Mode 4 of the overall mode is the automatic mode, which alone has a velocity smoothing. The form does not offer it;
 *  a receiver that is in it leaves the mode without a choice, and nothing is sent until the operator makes one. */
class MELVOX_UI_EXPORT melvoxUiNavigationMode_t : public QWidget
{
    Q_OBJECT

public:
    explicit melvoxUiNavigationMode_t(brel_common_qt::remoteMelvoxDevice_t* device);
    ~melvoxUiNavigationMode_t();

public slots:
    void submit();
    void reset();
    void query();

    void updateMeasUse();
    void resetMeasUse();
    void submitMeasUse();

    void updateDynamicConfig();
    void resetDynamicConfig();
    void submitDynamicConfig(brel_common_qt_gui::errorText_t& err);

    /** Runs whenever another overall mode is chosen: velocity smoothing can be set in automatic mode only. */
    void checkDynamicMode();

private:
    Q_DISABLE_COPY(melvoxUiNavigationMode_t)

    class measUseUi_t;
    struct privateData_t;

    void createRows();
    void connectReceiver();

    privateData_t* m_data;
};

} // namespace brel_common_qt_gui

#endif
