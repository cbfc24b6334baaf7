#ifndef MELVOX_UI_EXTENDED_NAV_INFO_H
#define MELVOX_UI_EXTENDED_NAV_INFO_H

#include "melvox_ui/melvoxUiExport.h"

#include <QWidget>

namespace brel_common_qt
{
class remoteMelvoxDevice_t;
}

namespace brel_common_qt_gui
{

/** The receiver's navigation summary: time, solution, corrections, solid earth tide (mm), error estimates (m) and
 *  velocity (m/s). The receiver must outlive the page. Shows what the receiver tells by itself, and nothing once it has
 *  told nothing valid for two seconds. */
class MELVOX_UI_EXPORT melvoxUiExtendedNavInfo_t : public QWidget
{
    Q_OBJECT

public:
    explicit melvoxUiExtendedNavInfo_t(brel_common_qt::remoteMelvoxDevice_t* device);
    ~melvoxUiExtendedNavInfo_t();

public slots:
    /** Runs whenever the receiver has told its summary, and once at construction. */
    void updateExtendedNavInfo();

    /** Shows that there is nothing to tell. */
    void clearExtendedNavInfo();

private:
    Q_DISABLE_COPY(melvoxUiExtendedNavInfo_t)

    struct privateData_t;

    static QString errorString(double metres);
    static QString velocityString(double metresPerSecond);
    void showSummary();
    void showDetails();

    privateData_t* m_data;
};

} // namespace brel_common_qt_gui

#endif
