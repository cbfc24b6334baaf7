#include "brel_common_qt/kitUsb.h"

#include <QtGlobal>

#if QT_VERSION >= 0x050400

#include <QFile>
#include <QFileInfo>
#include <QScopedPointer>
#include <QSocketNotifier>
#include <QStorageInfo>

namespace
{

using melvox_kit::mount_t;

class systemMounts_t : public melvox_kit::mountTable_t
{
public:
    systemMounts_t() : m_table(QLatin1String("/proc/self/mounts"))
    {
        // The kernel raises an exceptional condition on this file for every mount.
        if (!m_table.open(QIODevice::ReadOnly | QIODevice::Unbuffered))
            return;
        m_notifier.reset(new QSocketNotifier(m_table.handle(), QSocketNotifier::Exception));
        connect(m_notifier.data(), &QSocketNotifier::activated, this, &mountTable_t::changed);
    }

    QList<mount_t> mounts() const override
    {
        QList<mount_t> mounts;
        QList<QStorageInfo> const volumes = QStorageInfo::mountedVolumes();
        for (int i = 0; i < volumes.size(); ++i)
        {
            QStorageInfo const& volume = volumes.at(i);
            // Other users' drives are nobody else's.
            if (!volume.isValid() || !volume.isReady() || !QFileInfo(volume.rootPath()).isReadable())
                continue;
            mount_t mount;
            mount.device = QString::fromLocal8Bit(volume.device());
            mount.path = volume.rootPath();
            mount.name = volume.name();
            mounts << mount;
        }
        return mounts;
    }

private:
    QFile m_table;
    QScopedPointer<QSocketNotifier> m_notifier;
};

} // namespace

melvox_kit::mountTable_t* melvox_kit::createSystemMounts()
{
    return new systemMounts_t;
}

#else

melvox_kit::mountTable_t* melvox_kit::createSystemMounts()
{
    return nullptr;
}

#endif
