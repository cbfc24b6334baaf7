#include "display/recording.h"

#include "brel_common_qt/remoteMelvoxDevice.h"
#include "brel_common_qt/usbDriveManager.h"
#include "display/actionRecorder.h"
#include "display/displayWindow.h"
#include "display/options.h"
#include "display/screen.h"
#include "display/uiSettings.h"
#include "display/unit.h"
#include "link/linkTap.h"
#include "link/secrets.h"

#include <QDateTime>

namespace melvox_display
{

namespace
{

/** The display's own settings are few; a larger file is not one of its own. */
int const MOST_SETTINGS = 64 * 1024;

QString settingsWithoutSecrets(QByteArray const& contents)
{
    QString kept;
    for (QByteArray const& line : contents.left(MOST_SETTINGS).split('\n'))
    {
        if (!line.isEmpty() && !melvox_link::isSecretName(QString::fromUtf8(line)))
            kept += QString::fromUtf8(line) + "\n";
    }
    return kept;
}

QVariantMap lineOf(melvox_link::link_t const& link)
{
    melvox_link::line_t line = melvox_link::line_t();
    if (!link.line(line))
        return QVariantMap();
    return {{"baud", line.baud},
            {"dataBits", line.dataBits},
            {"parity", QString(QChar(line.parity))},
            {"stopBits", line.stopBits}};
}

} // namespace

recording_t::recording_t() = default;

recording_t::~recording_t() = default;

bool recording_t::open(QString const& file, QString& reason, qint64 limit)
{
    return m_writer.open(file, reason, limit);
}

void recording_t::begin(options_t const& options, unit_t& unit, uiSettings_t const& settings)
{
    QVariantMap header = {
        {"program", QString("melvox_display ") + MELVOX_VERSION},
        {"started", QDateTime::currentDateTimeUtc().toString(Qt::ISODate)},
        {"size", QString("%1x%2").arg(options.size.width()).arg(options.size.height())},
        {"units", uiSettings_t::unitName()},
        {"format", uiSettings_t::formatName()},
        {"usb", brel_common_qt::usbDriveManager_t::m_instance != nullptr},
        {"tcp", unit.device()->isPortTcpConnect()},
        {"settings", settingsWithoutSecrets(settings.contents())},
    };
    QVariantMap const line = lineOf(*unit.tap());
    if (!line.isEmpty())
        header.insert("line", line);
    m_writer.begin(header, unit.tap());
    m_actions = std::make_unique<actionRecorder_t>();
    QObject::connect(m_actions.get(), &actionRecorder_t::acted, &m_writer,
                     [this](action_t const& action) { m_writer.writeAction(toMap(action)); });
}

void recording_t::writePage(QString const& page)
{
    action_t action;
    action.page = page;
    m_writer.writeAction(toMap(action));
}

void recording_t::watch(displayWindow_t& window, QString const& firstPage)
{
    writePage(window.screen()->currentPage());
    // A dialog lies over a page.
    if (!firstPage.isEmpty() && firstPage != window.screen()->currentPage())
        writePage(firstPage);
    m_actions->watch(&window);
}

void recording_t::end()
{
    m_actions.reset();
    m_writer.close();
}

} // namespace melvox_display
