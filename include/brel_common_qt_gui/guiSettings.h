#ifndef BREL_COMMON_QT_GUI_GUI_SETTINGS_H
#define BREL_COMMON_QT_GUI_GUI_SETTINGS_H

#include "brel_common_qt/units.h"
#include "brel_common_qt_gui/brelCommonQtGuiExport.h"

#include <QObject>

namespace brel_common_qt_gui
{

/** What the operator prefers, the same for all screens. The host sets it; screens read it each time they format a
 *  position or a distance. */
class BREL_COMMON_QT_GUI_EXPORT guiSettings_t : public QObject
{
    Q_OBJECT

public:
    /** The one instance. */
    static guiSettings_t& get();

    brel_common_qt::latLonFormat_t latLonFormat() const;
    brel_common_qt::distanceUnit_t distanceUnit() const;

    void setLatLonFormat(brel_common_qt::latLonFormat_t format);
    void setDistanceUnit(brel_common_qt::distanceUnit_t unit);

signals:
    void latLonFormatChanged();
    void distanceUnitChanged();

private:
    Q_DISABLE_COPY(guiSettings_t)

    guiSettings_t();
    ~guiSettings_t();

    brel_common_qt::latLonFormat_t m_latLonFormat;
    brel_common_qt::distanceUnit_t m_distanceUnit;
};

} // namespace brel_common_qt_gui

#endif
