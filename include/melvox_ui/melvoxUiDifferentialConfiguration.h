#ifndef MELVOX_UI_DIFFERENTIAL_CONFIGURATION_H
#define MELVOX_UI_DIFFERENTIAL_CONFIGURATION_H

#include "melvox_ui/melvoxUiExport.h"

#include <QWidget>

namespace brel_common_qt
{
class remoteMelvoxDevice_t;
struct melvoxDiffConfig_t;
} // namespace brel_common_qt

namespace brel_common_qt_gui
{

class errorText_t;

/** Work as a rover that takes RTCM corrections in, or as a base station that sends them out on a port; the base
 *  station's name and position. Positions and heights follow the operator's format and unit, and change with them.
 *  The receiver must outlive the page.
 *
 *  Lives like every settings page, see melvoxUiSolutionControl_t, but asks for everything again after each Apply, since
 *  the groups depend on each other in the receiver. The name is always sent, also before the receiver has told one. */
class MELVOX_UI_EXPORT melvoxUiDifferentialConfiguration_t : public QWidget
{
    Q_OBJECT

public:
    explicit melvoxUiDifferentialConfiguration_t(brel_common_qt::remoteMelvoxDevice_t* device);
    ~melvoxUiDifferentialConfiguration_t();

public slots:
    void submit();
    void reset();
    void query();

    /** A base has a port, an id other than 0 and RTCM 2.3; only a rover can be dynamic. */
    void checkDiffMode();

    void updateDiffConfig();
    void resetDiffConfig();
    void submitDiffConfig(brel_common_qt_gui::errorText_t& err);

    void updateRtcmVersion();
    void resetRtcmVersion();
    void submitRtcmVersion();

    void updateBaseName();
    void resetBaseName();
    void submitBaseName();

    void updateBasePosition();
    /** Shows a position given in radians and metres. */
    void updateBasePosition(double latitude, double longitude, double height);
    void configureBasePosition();

private:
    Q_DISABLE_COPY(melvoxUiDifferentialConfiguration_t)

    struct privateData_t;

    bool isBase() const; //!< the mode that is chosen on the page
    bool checkStationId(brel_common_qt::melvoxDiffConfig_t const& config, brel_common_qt_gui::errorText_t& err) const;
    void connectPage();
    void connectReceiver();

    privateData_t* m_data;
};

} // namespace brel_common_qt_gui

#endif
