#include "brel_common_qt_gui/longitudeEdit.h"

#include "brel_common_qt_gui/angleEdit_p.h"

namespace brel_common_qt_gui
{

longitudeEdit_t::longitudeEdit_t(QWidget* parent) : angleEdit_t(createData(), parent)
{
}

angleEdit_t::privateData_t* longitudeEdit_t::createData()
{
    privateData_t* const data = new privateData_t(QLatin1String("longitude"), 180);
    data->positiveSide = tr("E");
    data->negativeSide = tr("W");
    data->wraps = true;
    return data;
}

void longitudeEdit_t::setLongitude(double degrees)
{
    setDegrees(degrees);
}

} // namespace brel_common_qt_gui
