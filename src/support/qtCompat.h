#ifndef MELVOX_UI_QT_COMPAT_H
#define MELVOX_UI_QT_COMPAT_H

#include <QHeaderView>
#include <QTextStream>

/** All that Qt 4, 5 and 6 call by different names. */
namespace brel_common_qt_gui
{

#if QT_VERSION >= 0x050e00
using Qt::endl;
#else
using ::endl;
#endif

/** Columns are made to fit their contents after the first sort: to move the sort indicator of columns that fit is to lay
 *  all of them out. */
inline void setResizeMode(QHeaderView* header, QHeaderView::ResizeMode mode)
{
#if QT_VERSION >= 0x050000
    header->setSectionResizeMode(mode);
#else
    header->setResizeMode(mode);
#endif
}

} // namespace brel_common_qt_gui

#endif
