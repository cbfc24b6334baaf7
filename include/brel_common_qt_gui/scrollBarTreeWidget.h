#ifndef BREL_COMMON_QT_GUI_SCROLL_BAR_TREE_WIDGET_H
#define BREL_COMMON_QT_GUI_SCROLL_BAR_TREE_WIDGET_H

#include "brel_common_qt_gui/brelCommonQtGuiExport.h"

#include <QTreeWidget>

namespace brel_common_qt_gui
{

/** A tree widget with scroll bars and rows large enough for a finger. */
class BREL_COMMON_QT_GUI_EXPORT scrollBarTreeWidget_t : public QTreeWidget
{
    Q_OBJECT

public:
    explicit scrollBarTreeWidget_t(QWidget* parent = 0);
};

} // namespace brel_common_qt_gui

#endif
