#ifndef BREL_COMMON_QT_GUI_LONGITUDE_EDIT_H
#define BREL_COMMON_QT_GUI_LONGITUDE_EDIT_H

#include "brel_common_qt_gui/angleEdit.h"

namespace brel_common_qt_gui
{

/** An edit for a longitude of -180 to 180 degrees, in the operator's format, with E or W. A longitude that is
 *  counted on round the globe, up to 360 degrees, is set as the same one within these limits. */
class BREL_COMMON_QT_GUI_EXPORT longitudeEdit_t : public angleEdit_t
{
    Q_OBJECT

public:
    explicit longitudeEdit_t(QWidget* parent = 0);

    void setLongitude(double degrees);

private:
    static privateData_t* createData();
};

} // namespace brel_common_qt_gui

#endif
