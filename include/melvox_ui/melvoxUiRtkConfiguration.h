#ifndef MELVOX_UI_RTK_CONFIGURATION_H
#define MELVOX_UI_RTK_CONFIGURATION_H

#include "melvox_ui/melvoxUiExport.h"

#include <QWidget>

namespace brel_common_qt
{
class remoteMelvoxDevice_t;
}

namespace brel_common_qt_gui
{

class errorText_t;

/** How the line between the two antennas lies on the vehicle: along one of its axes, or at an angle of 0 up to, but not
 *  including, 360 degrees. The receiver must outlive the page. Lives like melvoxUiSolutionControl_t. */
class MELVOX_UI_EXPORT melvoxUiRtkConfiguration_t : public QWidget
{
    Q_OBJECT

public:
    explicit melvoxUiRtkConfiguration_t(brel_common_qt::remoteMelvoxDevice_t* device);
    ~melvoxUiRtkConfiguration_t();

public slots:
    void submit();
    void reset();
    void query();

    void updateAntennaAlignment();
    void resetAntennaAlignment();
    void submitAntennaAlignment(brel_common_qt_gui::errorText_t& err);

    /** Runs whenever another alignment is chosen: only a user-specified one has an angle. */
    void checkAlignment();

    /** Runs once, when the event loop gets to it after construction: a host may have added pages to the stack by then. */
    void showMbrtkPage();

private:
    Q_DISABLE_COPY(melvoxUiRtkConfiguration_t)

    struct privateData_t;

    void connectReceiver();

    privateData_t* m_data;
};

} // namespace brel_common_qt_gui

#endif
