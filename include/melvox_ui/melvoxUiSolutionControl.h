#ifndef MELVOX_UI_SOLUTION_CONTROL_H
#define MELVOX_UI_SOLUTION_CONTROL_H

#include "melvox_ui/melvoxUiExport.h"

#include <QWidget>

namespace brel_common_qt
{
class remoteMelvoxDevice_t;
}

namespace brel_common_qt_gui
{

class errorText_t;

/** How the receiver forms its position solution: masks, geoid, correction inputs and their age, LEO OTI.
 *  Angles in degrees, ages in whole seconds. The receiver must outlive the page.
 *
 *  Every settings page lives like this one, so it is told once, here. For each group of settings X the page shows the
 *  receiver's value in a label beside an editor.
 *  - updateX() runs whenever the receiver has told X, and once at construction. It renews the label. The first time it
 *    also fills the editor; after that what the operator is typing is left alone.
 *  - resetX() puts the receiver's value into the editor, whatever the operator typed.
 *  - submitX() checks the editor and sends its value, or adds a line on what is wrong. A group that the receiver has
 *    not told yet is disabled and not sent.
 *  query(), reset() and submit() do this for all groups in the order in which the page shows them; the page's buttons
 *  Query, Reset and Apply run them, and a host may. */
class MELVOX_UI_EXPORT melvoxUiSolutionControl_t : public QWidget
{
    Q_OBJECT

public:
    explicit melvoxUiSolutionControl_t(brel_common_qt::remoteMelvoxDevice_t* device);
    ~melvoxUiSolutionControl_t();

public slots:
    void submit();
    void reset();
    void query();

    void updateElevationMask();
    void resetElevationMask();
    void submitElevationMask(brel_common_qt_gui::errorText_t& err);

    void updatePdopLimit();
    void resetPdopLimit();
    void submitPdopLimit(brel_common_qt_gui::errorText_t& err);

    void updateGeoidalModel();
    void resetGeoidalModel();
    void submitGeoidalModel();

    void updateCorrsEnabled();
    void resetCorrsEnabled();
    void submitCorrsEnabled();

    void updateCorrsMaxAge();
    void resetCorrsMaxAge();
    void submitCorrsMaxAge();

    /** Mode and protocol are told and sent as one, and can be sent before the receiver has told them. */
    void updateNtripPPPMode();
    void resetNtripPPPMode();
    void resetNtripPPPProtocol();
    void submitNtripPPPMode();

private:
    Q_DISABLE_COPY(melvoxUiSolutionControl_t)

    class corrUi_t;
    struct privateData_t;

    void createRows();
    void connectReceiver();

    privateData_t* m_data;
};

} // namespace brel_common_qt_gui

#endif
