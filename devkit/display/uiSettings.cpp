#include "display/uiSettings.h"

#include "brel_common_qt_gui/guiSettings.h"
#include "qdconfig/config.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QMetaObject>
#include <QStandardPaths>
#include <QVariant>
#include <QWidget>

namespace melvox_display
{

namespace
{

using namespace brel_common_qt;
using brel_common_qt_gui::guiSettings_t;

std::string const LAST_PAGE = "display/lastPage";
std::string const UNITS = "display/units";
std::string const FORMAT = "display/format";

QStringList const UNIT_NAMES = {"m", "ft"};
QStringList const FORMAT_NAMES = {"deg", "dm", "dms"};

char const* const PREFIX = "uiSettingsPrefix";

QString ownFile()
{
    QDir const folder(QStandardPaths::writableLocation(QStandardPaths::AppConfigLocation));
    return folder.filePath("display.conf");
}

bool hasSlot(QObject const* page, char const* slot)
{
    return page->metaObject()->indexOfSlot(QMetaObject::normalizedSignature(slot)) >= 0;
}

} // namespace

uiSettings_t::uiSettings_t(QString const& file, QObject* parent)
    : QObject(parent), m_file(file.isEmpty() ? ownFile() : file), m_complained(false)
{
    if (file.isEmpty())
        QDir().mkpath(QFileInfo(m_file).path());
    m_config.reset(new qdconfig::config_t(QFile::encodeName(m_file).toStdString()));
}

uiSettings_t::~uiSettings_t()
{
}

QString uiSettings_t::read(std::string const& key) const
{
    std::string value;
    m_config->getValue(key, value);
    return QString::fromStdString(value);
}

void uiSettings_t::write(std::string const& key, QString const& value)
{
    if (m_config->setValue(key, value.toStdString()) || m_complained)
        return;
    m_complained = true;
    qWarning("Settings are not kept: the file %s cannot be written. Choose another one with --settings.",
             qPrintable(QDir::toNativeSeparators(m_file)));
}

void uiSettings_t::applyPreferences(options_t const& options)
{
    guiSettings_t& settings = guiSettings_t::get();
    int const unit = UNIT_NAMES.indexOf(read(UNITS));
    int const format = FORMAT_NAMES.indexOf(read(FORMAT));
    if (options.units || unit >= 0)
        settings.setDistanceUnit(options.units ? *options.units : static_cast<distanceUnit_t>(unit));
    if (options.format || format >= 0)
        settings.setLatLonFormat(options.format ? *options.format : static_cast<latLonFormat_t>(format));
    connect(&settings, SIGNAL(distanceUnitChanged()), this, SLOT(saveUnit()), Qt::UniqueConnection);
    connect(&settings, SIGNAL(latLonFormatChanged()), this, SLOT(saveFormat()), Qt::UniqueConnection);
}

void uiSettings_t::saveUnit()
{
    write(UNITS, unitName());
}

void uiSettings_t::saveFormat()
{
    write(FORMAT, formatName());
}

QString uiSettings_t::unitName()
{
    return UNIT_NAMES.value(guiSettings_t::get().distanceUnit());
}

QString uiSettings_t::formatName()
{
    return FORMAT_NAMES.value(guiSettings_t::get().latLonFormat());
}

QByteArray uiSettings_t::contents() const
{
    QFile file(m_file);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

QString uiSettings_t::lastPage() const
{
    return read(LAST_PAGE);
}

void uiSettings_t::setLastPage(QString const& name)
{
    if (name != lastPage())
        write(LAST_PAGE, name);
}

void uiSettings_t::attachPage(QWidget* page, QString const& name)
{
    std::string const prefix = "pages/" + name.toStdString() + "/";
    page->setProperty(PREFIX, QString::fromStdString(prefix));
    if (hasSlot(page, "loadUiSettings(qdconfig::config_t*,std::string)"))
        QMetaObject::invokeMethod(page, "loadUiSettings", Qt::DirectConnection,
                                  Q_ARG(qdconfig::config_t*, m_config.get()), Q_ARG(std::string, prefix));
    bool const asks = page->metaObject()->indexOfSignal("saveUiSettingsNeeded()") >= 0;
    if (asks && hasSlot(page, "saveUiSettings(qdconfig::config_t*,std::string)"))
        connect(page, SIGNAL(saveUiSettingsNeeded()), this, SLOT(savePage()));
}

void uiSettings_t::savePage()
{
    QObject* page = sender();
    QMetaObject::invokeMethod(page, "saveUiSettings", Qt::DirectConnection, Q_ARG(qdconfig::config_t*, m_config.get()),
                              Q_ARG(std::string, page->property(PREFIX).toString().toStdString()));
}

} // namespace melvox_display
