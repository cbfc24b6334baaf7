#ifndef MELVOX_UI_VHD_INFO_H
#define MELVOX_UI_VHD_INFO_H

#include "melvox_ui/melvoxUiExport.h"

#include <QWidget>

namespace brel_common_qt
{
class remoteMelvoxDevice_t;
}

namespace brel_common_qt_gui
{

/** The heading of the two-antenna system: headings, attitude and RMS in degrees, baseline in metres. The receiver must
 *  outlive the page. Shows what the receiver tells by itself, and nothing once it has told nothing for 2.5 seconds. */
class MELVOX_UI_EXPORT melvoxUiVHDInfo_t : public QWidget
{
    Q_OBJECT

public:
    explicit melvoxUiVHDInfo_t(brel_common_qt::remoteMelvoxDevice_t* device);
    ~melvoxUiVHDInfo_t();

public slots:
    /** Runs whenever the receiver has told a heading. The corrected heading is not brought back within 0 to 360. */
    void updateVHDInfo(double rawHeading, double attitude, double baseline, double headingRMS);

    /** Shows that there is nothing to tell. */
    void clearVHDInfo();

private:
    Q_DISABLE_COPY(melvoxUiVHDInfo_t)

    struct privateData_t;

    privateData_t* m_data;
};

} // namespace brel_common_qt_gui

#endif
