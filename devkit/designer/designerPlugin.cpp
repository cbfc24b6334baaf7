#include "designerPlugin.h"

#include "designerWidget.h"

#include "brel_common_qt_gui/distanceEdit.h"
#include "brel_common_qt_gui/latitudeEdit.h"
#include "brel_common_qt_gui/longitudeEdit.h"
#include "brel_common_qt_gui/scrollBarTreeWidget.h"

namespace melvox_designer
{

namespace
{

template <typename widget_t> QWidget* create(QWidget* parent)
{
    return new widget_t(parent);
}

using namespace brel_common_qt_gui;

widgetInfo_t const WIDGETS[] = {
    {"brel_common_qt_gui::angleEdit_t", "QWidget", "brel_common_qt_gui/angleEdit.h", "angleEdit", "An angle in degrees",
     create<angleEdit_t>},
    {"brel_common_qt_gui::latitudeEdit_t", "QWidget", "brel_common_qt_gui/latitudeEdit.h", "latitudeEdit",
     "A latitude in the operator's format", create<latitudeEdit_t>},
    {"brel_common_qt_gui::longitudeEdit_t", "QWidget", "brel_common_qt_gui/longitudeEdit.h", "longitudeEdit",
     "A longitude in the operator's format", create<longitudeEdit_t>},
    {"brel_common_qt_gui::distanceEdit_t", "QWidget", "brel_common_qt_gui/distanceEdit.h", "distanceEdit",
     "A distance or height in the operator's unit", create<distanceEdit_t>},
    {"brel_common_qt_gui::scrollBarTreeWidget_t", "QTreeWidget", "brel_common_qt_gui/scrollBarTreeWidget.h",
     "treeWidget", "A tree or table for fingers", create<scrollBarTreeWidget_t>},
};

} // namespace

designerPlugin_t::designerPlugin_t(QObject* parent) : QObject(parent)
{
    for (widgetInfo_t const& info : WIDGETS)
        m_widgets << new designerWidget_t(info, this);
}

QList<QDesignerCustomWidgetInterface*> designerPlugin_t::customWidgets() const
{
    return m_widgets;
}

} // namespace melvox_designer
