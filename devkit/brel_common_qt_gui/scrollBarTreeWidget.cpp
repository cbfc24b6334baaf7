#include "brel_common_qt_gui/scrollBarTreeWidget.h"

#include "brel_common_qt_gui/touch.h"

#include <QHeaderView>
#include <QScrollBar>
#include <QStyledItemDelegate>

namespace brel_common_qt_gui
{

namespace
{

class touchScrollBar_t : public QScrollBar
{
public:
    touchScrollBar_t(Qt::Orientation orientation, QWidget* parent) : QScrollBar(orientation, parent) {}

    QSize sizeHint() const override { return enlarged(QScrollBar::sizeHint()); }
    QSize minimumSizeHint() const override { return enlarged(QScrollBar::minimumSizeHint()); }

private:
    QSize enlarged(QSize const& size) const
    {
        return size.expandedTo(orientation() == Qt::Vertical ? QSize(melvox_kit::TOUCH_HEIGHT, 0)
                                                             : QSize(0, melvox_kit::TOUCH_HEIGHT));
    }
};

class touchDelegate_t : public QStyledItemDelegate
{
public:
    explicit touchDelegate_t(QObject* parent) : QStyledItemDelegate(parent) {}

    QSize sizeHint(QStyleOptionViewItem const& option, QModelIndex const& index) const override
    {
        return QStyledItemDelegate::sizeHint(option, index).expandedTo(QSize(0, melvox_kit::TOUCH_HEIGHT));
    }
};

} // namespace

scrollBarTreeWidget_t::scrollBarTreeWidget_t(QWidget* parent) : QTreeWidget(parent)
{
    setVerticalScrollBar(new touchScrollBar_t(Qt::Vertical, this));
    setHorizontalScrollBar(new touchScrollBar_t(Qt::Horizontal, this));
    // A finger that drags the bar sees the rows move with it.
    setVerticalScrollMode(QAbstractItemView::ScrollPerPixel);
    setHorizontalScrollMode(QAbstractItemView::ScrollPerPixel);
    setItemDelegate(new touchDelegate_t(this));
    header()->setMinimumHeight(melvox_kit::TOUCH_HEIGHT);
}

} // namespace brel_common_qt_gui
