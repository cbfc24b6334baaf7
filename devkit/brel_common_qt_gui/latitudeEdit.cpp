#include "brel_common_qt_gui/latitudeEdit.h"

#include "brel_common_qt_gui/angleEdit_p.h"

namespace brel_common_qt_gui
{

latitudeEdit_t::latitudeEdit_t(QWidget* parent) : angleEdit_t(createData(), parent)
{
}

angleEdit_t::privateData_t* latitudeEdit_t::createData()
{
    privateData_t* const data = new privateData_t(QLatin1String("latitude"), 90);
    data->positiveSide = tr("N");
    data->negativeSide = tr("S");
    return data;
}

void latitudeEdit_t::setLatitude(double degrees)
{
    setDegrees(degrees);
}

} // namespace brel_common_qt_gui
