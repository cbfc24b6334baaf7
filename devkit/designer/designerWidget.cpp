#include "designerWidget.h"

#include <QIcon>

namespace melvox_designer
{

designerWidget_t::designerWidget_t(widgetInfo_t const& info, QObject* parent) : QObject(parent), m_info(info)
{
}

QString designerWidget_t::name() const
{
    return m_info.className;
}

QString designerWidget_t::group() const
{
    return "Melvox";
}

QString designerWidget_t::toolTip() const
{
    return m_info.toolTip;
}

QString designerWidget_t::whatsThis() const
{
    return m_info.toolTip;
}

QString designerWidget_t::includeFile() const
{
    return m_info.header;
}

QIcon designerWidget_t::icon() const
{
    return QIcon();
}

bool designerWidget_t::isContainer() const
{
    return false;
}

QWidget* designerWidget_t::createWidget(QWidget* parent)
{
    return m_info.create(parent);
}

QString designerWidget_t::domXml() const
{
    // The base is named so that Designer offers what it has for it, such as the columns of a tree.
    return QString("<ui language=\"c++\"><widget class=\"%1\" name=\"%2\"/>"
                   "<customwidgets><customwidget><class>%1</class><extends>%3</extends></customwidget></customwidgets>"
                   "</ui>")
        .arg(m_info.className, m_info.objectName, m_info.base);
}

} // namespace melvox_designer
