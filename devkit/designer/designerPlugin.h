#ifndef MELVOX_DESIGNER_PLUGIN_H
#define MELVOX_DESIGNER_PLUGIN_H

#include <QObject>
#include <QtUiPlugin/QDesignerCustomWidgetCollectionInterface>

namespace melvox_designer
{

/** What Qt Designer loads. The IP edits and the message lights of brel_common_qt_gui are not among the widgets: they turn a
 *  plain line edit or label of the form into one at run time, and the form looks the same without them. */
class designerPlugin_t : public QObject, public QDesignerCustomWidgetCollectionInterface
{
    Q_OBJECT
    Q_PLUGIN_METADATA(IID "org.qt-project.Qt.QDesignerCustomWidgetCollectionInterface")
    Q_INTERFACES(QDesignerCustomWidgetCollectionInterface)

public:
    explicit designerPlugin_t(QObject* parent = nullptr);

    QList<QDesignerCustomWidgetInterface*> customWidgets() const override;

private:
    QList<QDesignerCustomWidgetInterface*> m_widgets;
};

} // namespace melvox_designer

#endif
