#ifndef MELVOX_DESIGNER_WIDGET_H
#define MELVOX_DESIGNER_WIDGET_H

#include <QObject>
#include <QtUiPlugin/QDesignerCustomWidgetInterface>

/** The widgets of brel_common_qt_gui in Qt Designer. */
namespace melvox_designer
{

/** What Designer is told of one widget. */
struct widgetInfo_t
{
    char const* className; //!< as forms name it
    char const* base;
    char const* header;
    char const* objectName; //!< what a new one is called
    char const* toolTip;
    QWidget* (*create)(QWidget* parent);
};

class designerWidget_t : public QObject, public QDesignerCustomWidgetInterface
{
    Q_OBJECT
    Q_INTERFACES(QDesignerCustomWidgetInterface)

public:
    /** The information must live as long. */
    designerWidget_t(widgetInfo_t const& info, QObject* parent);

    QString name() const override;
    QString group() const override;
    QString toolTip() const override;
    QString whatsThis() const override;
    QString includeFile() const override;
    QIcon icon() const override;
    bool isContainer() const override;
    QWidget* createWidget(QWidget* parent) override;
    QString domXml() const override;

private:
    widgetInfo_t const& m_info;
};

} // namespace melvox_designer

#endif
