#ifndef MELVOX_UI_DTM_WARN_DIALOG_H
#define MELVOX_UI_DTM_WARN_DIALOG_H

#include "melvox_ui/melvoxUiExport.h"

#include <QDialog>

namespace brel_common_qt_gui
{

/** Warns that the receiver may start to send DTM sentences by itself, and offers not to warn again.
 *  Needs no receiver. Whoever shows it listens to finished(), whatever its result, and then asks suppressWarning(). */
class MELVOX_UI_EXPORT melvoxUiDtmWarnDialog_t : public QDialog
{
    Q_OBJECT

public:
    explicit melvoxUiDtmWarnDialog_t(QWidget* parent);
    ~melvoxUiDtmWarnDialog_t();

    /** True while the operator wants no more of it. Kept from one showing to the next. */
    bool suppressWarning() const;

private:
    Q_DISABLE_COPY(melvoxUiDtmWarnDialog_t)

    struct privateData_t;
    privateData_t* m_data;
};

} // namespace brel_common_qt_gui

#endif
