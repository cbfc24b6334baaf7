#include "receiver/profiles.h"

#include "receiver/profileText.h"

#include <QDateTime>
#include <QDir>
#include <QSaveFile>
#include <QUrl>

#include <algorithm>

namespace melvox_receiver
{

namespace
{

char const* const FACTORY = "Factory";
int const LONGEST_NAME = 32;
int const MOST_PROFILES = 20;
int const LONGEST_PROFILE = 1024 * 1024; // bytes

/** Blocks that displays send, but for a file's last one. */
int const FULL_BLOCK = 1024; // bytes

QString const FILE_SUFFIX = ".profile";
QString const ACTIVE_FILE = "active";

int const UPLOAD_OK = 0;
int const UPLOAD_ERROR = 1;

bool writeFile(QString const& path, QByteArray const& bytes, unsigned int modified)
{
    QSaveFile file(path);
    if (!file.open(QIODevice::WriteOnly) || file.write(bytes) != bytes.size() || !file.commit())
        return false;
    QFile written(path);
    // The time is the receiver's, which need not be that of the computer.
    return written.open(QIODevice::ReadWrite) &&
           written.setFileTime(QDateTime::fromSecsSinceEpoch(modified), QFileDevice::FileModificationTime);
}

QByteArray readFile(QString const& path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

/** Made when it is not there. */
bool isUsable(QString const& folder)
{
    if (!QDir().mkpath(folder))
        return false;
    QFileInfo const info(folder);
    return info.isDir() && info.isReadable() && info.isWritable();
}

bool isName(QString const& name)
{
    return !name.isEmpty() && name.size() <= LONGEST_NAME &&
           std::all_of(name.begin(), name.end(), [](QChar c) { return c >= ' ' && c <= '~'; });
}

} // namespace

profiles_t::profiles_t(receiver_t& owner) : behaviour_t(owner), m_active(FACTORY)
{
    m_profiles.insert(FACTORY, {startSettings(), unsigned(receiver.clock().now() / 1000)});
}

behaviour_t::answer_t profiles_t::request(link_t* from, QString const& group)
{
    if (group == "profiles")
        list(from);
    else if (group == "activeProfile")
        receiver.report(from, group, m_active);
    else
        return NOT_MINE;
    return DONE;
}

behaviour_t::answer_t profiles_t::command(link_t* from, QString const& group, QVariant const& value)
{
    if (group == "uploadData")
    {
        if (value.userType() != QMetaType::QByteArray)
            return UNREADABLE;
        receiver.report(from, "uploadResult", load(from, value.toByteArray()));
        return DONE;
    }
    if (group != "useProfile" && group != "saveAsProfile" && group != "deleteProfile" && group != "dumpProfile")
        return NOT_MINE;
    if (value.userType() != QMetaType::QString)
        return UNREADABLE;
    if (group == "useProfile")
        use(from, value.toString());
    else if (group == "saveAsProfile")
        save(value.toString());
    else if (group == "deleteProfile")
        remove(value.toString());
    else
        dump(from, value.toString());
    return DONE;
}

QStringList profiles_t::situations() const
{
    return {"profileFolder"};
}

behaviour_t::answer_t profiles_t::situation(QString const& name, QVariant const& value)
{
    if (name != "profileFolder")
        return NOT_MINE;
    QString const folder = value.toString();
    if (!folder.isEmpty() && !isUsable(folder))
        return UNREADABLE;
    m_folder = folder;
    if (!m_folder.isEmpty())
        readFolder();
    return DONE;
}

QString profiles_t::fileOf(QString const& name) const
{
    // Names may have characters that file names must not have.
    return QDir(m_folder).filePath(QString::fromLatin1(QUrl::toPercentEncoding(name, " ", ".")) + FILE_SUFFIX);
}

void profiles_t::readFolder()
{
    for (QFileInfo const& info : QDir(m_folder).entryInfoList({"*" + FILE_SUFFIX}, QDir::Files))
    {
        QString const name = QUrl::fromPercentEncoding(info.completeBaseName().toLatin1());
        settings_t settings;
        // A file that somebody has spoilt is no profile.
        if (isName(name) && name != FACTORY && readProfile(readFile(info.filePath()), settings) == PROFILE_COMPLETE)
            m_profiles.insert(name, {settings, unsigned(info.lastModified().toSecsSinceEpoch())});
    }
    QString const active = QString::fromLatin1(readFile(QDir(m_folder).filePath(ACTIVE_FILE)));
    if (m_profiles.contains(active))
        m_active = active;
}

void profiles_t::write(QString const& name) const
{
    profile_t const profile = m_profiles.value(name);
    if (!m_folder.isEmpty())
        writeFile(fileOf(name), profileText(profile.settings), profile.modified);
}

void profiles_t::writeActive() const
{
    if (!m_folder.isEmpty())
        writeFile(QDir(m_folder).filePath(ACTIVE_FILE), m_active.toLatin1(), unsigned(receiver.clock().now() / 1000));
}

void profiles_t::list(link_t* to)
{
    receiver.event(to, "profilesCleared");
    for (auto it = m_profiles.begin(); it != m_profiles.end(); ++it)
        receiver.report(to, "profile", QVariantMap{{"name", it.key()}, {"modified", it.value().modified}});
}

void profiles_t::tell(QString const& name)
{
    receiver.report("profile", QVariantMap{{"name", name}, {"modified", m_profiles.value(name).modified}});
}

void profiles_t::activate(QString const& name)
{
    m_active = name;
    writeActive();
    receiver.report("activeProfile", m_active);
}

void profiles_t::use(link_t* from, QString const& name)
{
    if (!m_profiles.contains(name))
    {
        receiver.report(from, "activeProfile", m_active);
        return;
    }
    receiver.restore(m_profiles.value(name).settings);
    activate(name);
}

/** A name that cannot be taken shows in the next list, where it is missing. */
void profiles_t::save(QString const& name)
{
    bool const fits = m_profiles.contains(name) || m_profiles.size() < MOST_PROFILES;
    if (!isName(name) || name == FACTORY || !fits)
        return;
    m_profiles.insert(name, {receiver.settings(), unsigned(receiver.clock().now() / 1000)});
    write(name);
    tell(name);
}

void profiles_t::remove(QString const& name)
{
    if (name == FACTORY || !m_profiles.remove(name))
        return;
    if (!m_folder.isEmpty())
        QFile::remove(fileOf(name));
    if (m_active == name)
        activate(QString());
}

void profiles_t::dump(link_t* to, QString const& path)
{
    receiver.report(to, "profileDump",
                    QVariantMap{{"path", path},
                                {"success", true},
                                {"description", "Dump complete"},
                                {"data", profileText(receiver.settings())}});
}

int profiles_t::load(link_t* from, QByteArray const& data)
{
    QByteArray& text = m_incoming[from];
    if (startsProfile(data))
        text.clear();
    text += data;
    settings_t settings;
    profileState_t state = PROFILE_DAMAGED;
    if (text.size() <= LONGEST_PROFILE)
        state = readProfile(text, settings);
    // A block that is not full is a file's last one: what is missing then does not come any more.
    if (state == PROFILE_INCOMPLETE && data.size() < FULL_BLOCK)
        state = PROFILE_DAMAGED;
    if (state != PROFILE_INCOMPLETE)
        m_incoming.remove(from);
    if (state == PROFILE_COMPLETE)
        receiver.restore(settings);
    return state == PROFILE_DAMAGED ? UPLOAD_ERROR : UPLOAD_OK;
}

void profiles_t::linkClosed(link_t* link)
{
    m_incoming.remove(link);
}

void profiles_t::lockChanged()
{
    // Whoever gives the lock back, or loses it, does not go on with a load.
    m_incoming.clear();
}

void profiles_t::restarted()
{
    m_incoming.clear();
}

} // namespace melvox_receiver
