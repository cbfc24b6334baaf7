#ifndef MELVOX_UI_CORRECTIONS_RECEIVER_H
#define MELVOX_UI_CORRECTIONS_RECEIVER_H

#include "melvox_ui/melvoxUiExport.h"

#include <QWidget>

namespace brel_common_qt
{
class remoteMelvoxDevice_t;
}

namespace brel_common_qt_gui
{

class errorText_t;

/** The receiver of corrections from satellites: what comes down from each of them, which one is in use, and when a new
 *  almanac is taken into use. The receiver must outlive the page.
 *
 *  Lives like every settings page, see melvoxUiSolutionControl_t. The table stands in the order in which satellites
 *  came until the operator taps a column's header; from then on it stays sorted. */
class MELVOX_UI_EXPORT melvoxUiCorrectionsReceiver_t : public QWidget
{
    Q_OBJECT

public:
    explicit melvoxUiCorrectionsReceiver_t(brel_common_qt::remoteMelvoxDevice_t* device);
    ~melvoxUiCorrectionsReceiver_t();

public slots:
    void submit();
    void reset();
    void query();

    void updateCorrectionSatStats();
    /** No satellite is known to be in use. The page leaves it to the host to decide when statistics are too old. */
    void clearCorrectionSatStats();
    void updateCorrectionSatAuto();

    void updateCorrectionSelection();
    void resetCorrectionSelection();
    void submitCorrectionSelection();

    /** These two are asked for, but nothing is shown of them. */
    void updateNetPriority();
    void updateRtgUseMode();

    void updateMrvAlmanacInfo();
    void updateStarfireAlmStatus();

    void showSatSelectDialog();

    /** Also runs when the operator chooses another policy. */
    void updateStarfireAlmSwitchPolicy();
    void resetStarfireAlmSwitchPolicy();
    void submitStarfireAlmSwitchPolicy(brel_common_qt_gui::errorText_t& err_);
    void checkStarfireAlmSwitchPolicy();

private:
    Q_DISABLE_COPY(melvoxUiCorrectionsReceiver_t)

    class item_t;
    struct privateData_t;

    void connectButtons();
    void connectReceiver();
    void fitColumnsOnce();

    privateData_t* m_data;
};

} // namespace brel_common_qt_gui

#endif
