#ifndef MELVOX_UI_BASE_POSITION_DIALOG_H
#define MELVOX_UI_BASE_POSITION_DIALOG_H

#include "melvox_ui/melvoxUiExport.h"

#include <QDialog>

namespace brel_common_qt
{
class remoteMelvoxDevice_t;
struct melvoxBasePosition_t;
} // namespace brel_common_qt

namespace brel_common_qt_gui
{

/** Takes the position of the base station, in the operator's format and unit, and sends it. Call reset() before each
 *  showing. The receiver must outlive the dialog. */
class MELVOX_UI_EXPORT melvoxUiBasePositionDialog_t : public QDialog
{
    Q_OBJECT

public:
    melvoxUiBasePositionDialog_t(brel_common_qt::remoteMelvoxDevice_t* device, QWidget* parent);
    ~melvoxUiBasePositionDialog_t();

public slots:
    /** Shows the receiver's position, or zeros while it has told none. */
    void reset();
    /** Sends the position and closes. */
    void submit();

private:
    Q_DISABLE_COPY(melvoxUiBasePositionDialog_t)

    struct privateData_t;

    void showPosition(brel_common_qt::melvoxBasePosition_t const& position);

    privateData_t* m_data;
};

} // namespace brel_common_qt_gui

#endif
