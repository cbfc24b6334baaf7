#ifndef MELVOX_UI_PROFILE_DUMPER_H
#define MELVOX_UI_PROFILE_DUMPER_H

#include "melvox_ui/melvoxUiExport.h"

#include <QObject>

#include <string>

namespace brel_common_qt
{
class remoteMelvoxDevice_t;
struct usbDrive_t;
} // namespace brel_common_qt

namespace brel_common_qt_gui
{

/** Has the receiver's settings written to a file: on a USB drive where the unit has a USB drive manager when this is
 *  made, where a file dialog says otherwise. A dialog shows how it went. The receiver must live as long. */
class MELVOX_UI_EXPORT melvoxUiProfileDumper_t : public QObject
{
    Q_OBJECT

public:
    melvoxUiProfileDumper_t(brel_common_qt::remoteMelvoxDevice_t* device, QObject* parent);
    ~melvoxUiProfileDumper_t();

public slots:
    /** The way in, for whatever control the host gives the operator. Returns at once. */
    void dumpSettings();
    /** The file is named after the time now. */
    void driveSelected(brel_common_qt::usbDrive_t const& drive);
    void fileSelected(QString const& path);
    /** Reports on files other than the one asked for last are passed over. */
    void profileDumpDone(std::string const& path, bool success, std::string const& desc);
    void showFileDialog();

private:
    Q_DISABLE_COPY(melvoxUiProfileDumper_t)

    struct privateData_t;

    void createDialogs();
    void startDump(QString const& path, QString const& destination);

    privateData_t* m_data;
};

} // namespace brel_common_qt_gui

#endif
