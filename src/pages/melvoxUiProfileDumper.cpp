#include "melvoxUiProfileDumper_p.h"

#include "brel_common_qt/remoteMelvoxDevice.h"
#include "brel_common_qt/timestamps.h"
#include "brel_common_qt/usbDriveManager.h"
#include "brel_common_qt_gui/dialogPage.h"
#include "brel_common_qt_gui/usbDriveSelectDialog.h"
#include "support/fileChooser.h"
#include "support/pageSupport.h"
#include "support/text8.h"

#include <QPushButton>

using namespace brel_common_qt;

namespace brel_common_qt_gui
{

namespace
{

// Not the suffix that is loaded: what was dumped is renamed by somebody who has made up his mind.
char const* const FILE_PREFIX = "profile_";
char const* const FILE_SUFFIX = ".dravel";

} // namespace

melvoxUiProfileDumper_t::privateData_t::privateData_t(remoteMelvoxDevice_t* device_)
    : device(device_), progressPage(nullptr), driveSelectPage(nullptr), fileChooser(nullptr)
{
}

melvoxUiProfileDumper_t::privateData_t::~privateData_t()
{
    delete progressPage;
    delete driveSelectPage;
}

melvoxUiProfileDumper_t::melvoxUiProfileDumper_t(remoteMelvoxDevice_t* device, QObject* parent)
    : QObject(parent), m_data(new privateData_t(device))
{
    createDialogs();
    connect(device, SIGNAL(profileDumpDone(std::string const&, bool, std::string const&)),
            SLOT(profileDumpDone(std::string const&, bool, std::string const&)));
}

melvoxUiProfileDumper_t::~melvoxUiProfileDumper_t()
{
    delete m_data;
}

void melvoxUiProfileDumper_t::createDialogs()
{
    QDialog* const progress = new QDialog;
    m_data->ui.setupUi(progress);
    m_data->ui.buttonBox->button(QDialogButtonBox::Close)->setMinimumHeight(TOUCH_HEIGHT);
    connect(m_data->ui.buttonBox, SIGNAL(rejected()), progress, SLOT(reject()));
    m_data->progressPage = new dialogPage_t(progress);

    if (usbDriveManager_t::m_instance)
    {
        usbDriveSelectDialog_t* const drives = new usbDriveSelectDialog_t(usbDriveManager_t::m_instance, nullptr);
        connect(drives, SIGNAL(driveSelected(brel_common_qt::usbDrive_t const&)),
                SLOT(driveSelected(brel_common_qt::usbDrive_t const&)));
        m_data->driveSelectPage = new dialogPage_t(drives);
    }
    m_data->fileChooser = new fileChooser_t(QFileDialog::AcceptSave, tr("Save Melvox Profile"),
                                            tr("Melvox Profile (*.dravel);;All Files (*)"), this);
    connect(m_data->fileChooser, SIGNAL(fileSelected(QString)), SLOT(fileSelected(QString)));
}

void melvoxUiProfileDumper_t::dumpSettings()
{
    if (m_data->driveSelectPage)
        m_data->driveSelectPage->show();
    else
        showFileDialog();
}

void melvoxUiProfileDumper_t::showFileDialog()
{
    m_data->fileChooser->show();
}

void melvoxUiProfileDumper_t::driveSelected(usbDrive_t const& drive)
{
    unsigned int const now = static_cast<unsigned int>(dataTimestamp());
    QString const name = FILE_PREFIX + filenameTimestamp(now, 0) + FILE_SUFFIX;
    startDump(drive.mountPoint + name, name + tr(" on ") + drive.name);
}

void melvoxUiProfileDumper_t::fileSelected(QString const& path)
{
    startDump(path, path);
}

void melvoxUiProfileDumper_t::startDump(QString const& path, QString const& destination)
{
    m_data->ui.dumpDestLabel->setText(destination);
    m_data->ui.statusLabel->setText(tr("Dumping..."));
    m_data->dumpPath = toPath8(path);
    m_data->device->dumpAsProfile(m_data->dumpPath);
    m_data->progressPage->show();
}

void melvoxUiProfileDumper_t::profileDumpDone(std::string const& path, bool, std::string const& desc)
{
    if (path == m_data->dumpPath)
        m_data->ui.statusLabel->setText(fromText8(desc));
}

} // namespace brel_common_qt_gui
