#ifndef BREL_COMMON_QT_GUI_LONGITUDE_EDIT_H
#define BREL_COMMON_QT_GUI_LONGITUDE_EDIT_H

#include "brel_common_qt_gui/angleEdit.h"

namespace brel_common_qt_gui
{

/** An edit for a longitude of -180 to 180 degrees, in the operator's format, with E or W. */
class BREL_COMMON_QT_GUI_EXPORT longitudeEdit_t : public angleEdit_t
{
    Q_OBJECT

public:
    explicit longitudeEdit_t(QWidget* parent = 0);

    void setLongitude(double degrees);
};

} // namespace brel_common_qt_gui

#endif
