#ifndef BREL_COMMON_QT_GUI_LATITUDE_EDIT_H
#define BREL_COMMON_QT_GUI_LATITUDE_EDIT_H

#include "brel_common_qt_gui/angleEdit.h"

namespace brel_common_qt_gui
{

/** An edit for a latitude of -90 to 90 degrees, in the operator's format, with N or S. */
class BREL_COMMON_QT_GUI_EXPORT latitudeEdit_t : public angleEdit_t
{
    Q_OBJECT

public:
    explicit latitudeEdit_t(QWidget* parent = 0);

    void setLatitude(double degrees);

private:
    static privateData_t* createData();
};

} // namespace brel_common_qt_gui

#endif
