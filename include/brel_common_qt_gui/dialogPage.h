#ifndef BREL_COMMON_QT_GUI_DIALOG_PAGE_H
#define BREL_COMMON_QT_GUI_DIALOG_PAGE_H

#include "brel_common_qt_gui/brelCommonQtGuiExport.h"

#include <QObject>
#include <QPointer>

class QDialog;

namespace brel_common_qt_gui
{

/** Where a host that shows dialogs as pages takes them. */
class BREL_COMMON_QT_GUI_EXPORT dialogHost_t
{
public:
    virtual ~dialogHost_t();

    /** Show this dialog until it is finished. The dialog stays its owner's: it may be destroyed at any time, is shown
     *  again later, and must be hidden, not deleted, when it is finished. Called for a dialog that is shown already:
     *  bring it to the front. */
    virtual void showDialog(QDialog* dialog) = 0;
};

/** Hands a dialog to the host, which shows it as a page. Without a host it opens as a window of its own.
 *  Owns the dialog: a page that is destroyed takes its dialogs along. */
class BREL_COMMON_QT_GUI_EXPORT dialogPage_t : public QObject
{
    Q_OBJECT

public:
    explicit dialogPage_t(QDialog* dialog);
    ~dialogPage_t();

    /** Returns at once; the dialog's own signals tell the outcome. While it is shown this brings it to the front, and
     *  does nothing once the dialog was deleted. */
    void show();

    /** The host, null for none; not owned. Set before the first page is shown. */
    static void setHost(dialogHost_t* host);
    static dialogHost_t* host();

private:
    Q_DISABLE_COPY(dialogPage_t)

    QPointer<QDialog> m_dialog;
};

} // namespace brel_common_qt_gui

#endif
