#ifndef MELVOX_UI_PPS_CONFIGURATION_H
#define MELVOX_UI_PPS_CONFIGURATION_H

#include "melvox_ui/melvoxUiExport.h"

#include <QWidget>

namespace brel_common_qt
{
class remoteMelvoxDevice_t;
}

namespace brel_common_qt_gui
{

class errorText_t;

/** The one-pulse-per-second output. The receiver must outlive the page. Lives like melvoxUiSolutionControl_t, with one
 *  group for everything. The operator sees and sets the polarity alone; width (ns), interval (ms) and delays (ms, ns)
 *  are hidden, filled from the receiver, and sent back with it. One of them outside its limits stops the whole group. */
class MELVOX_UI_EXPORT melvoxUiPpsConfiguration_t : public QWidget
{
    Q_OBJECT

public:
    explicit melvoxUiPpsConfiguration_t(brel_common_qt::remoteMelvoxDevice_t* device);
    ~melvoxUiPpsConfiguration_t();

public slots:
    void submit();
    void reset();
    void query();

    void updatePps();
    void resetPps();
    void submitPps(brel_common_qt_gui::errorText_t& err);

private:
    Q_DISABLE_COPY(melvoxUiPpsConfiguration_t)

    struct privateData_t;

    privateData_t* m_data;
};

} // namespace brel_common_qt_gui

#endif
