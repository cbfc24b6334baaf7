#ifndef MELVOX_UI_RESTART_H
#define MELVOX_UI_RESTART_H

#include "melvox_ui/melvoxUiExport.h"

#include <QWidget>

namespace brel_common_qt
{
class remoteMelvoxDevice_t;
}

namespace brel_common_qt_gui
{

/** Restarts the receiver's positioning, warm or cold, at once and as often as a button is pressed; there is no question
 *  and no answer. The receiver must outlive the page. */
class MELVOX_UI_EXPORT melvoxUiRestart_t : public QWidget
{
    Q_OBJECT

public:
    explicit melvoxUiRestart_t(brel_common_qt::remoteMelvoxDevice_t* device);
    ~melvoxUiRestart_t();

public slots:
    /** Restarts with the almanac as it is chosen now. */
    void coldRestart();

private:
    Q_DISABLE_COPY(melvoxUiRestart_t)

    struct privateData_t;

    privateData_t* m_data;
};

} // namespace brel_common_qt_gui

#endif
