#include "proxycheck/signalRecorder.h"

#include <QMetaMethod>
#include <QMutexLocker>
#include <QThread>

namespace melvox_proxycheck
{

namespace
{

/** The other signals are the proxy's own. */
char const* const PORT_SIGNALS[] = {"openChanged", "lockStateUpdated", "uploadResult"};

bool isPortSignal(QByteArray const& signature)
{
    for (char const* name : PORT_SIGNALS)
    {
        if (signature.startsWith(QByteArray(name) + '('))
            return true;
    }
    return false;
}

} // namespace

QByteArray signatureOf(QMetaMethod const& method)
{
#if QT_VERSION < 0x050000
    return method.signature();
#else
    return method.methodSignature();
#endif
}

signalRecorder_t::signalRecorder_t(brel_common_qt::remoteMelvoxDevice_t* device, state_t const& state)
    : m_state(state), m_foreign(false)
{
    for (QByteArray const& signature : expected())
    {
        if (!isPortSignal(signature))
            listen(device, signature);
    }
}

void signalRecorder_t::watchPort(brel_common_qt::remotePort_t* port)
{
    for (QByteArray const& signature : expected())
    {
        if (isPortSignal(signature))
            listen(port, signature);
    }
}

QList<QByteArray> signalRecorder_t::expected()
{
    QList<QByteArray> signatures;
    for (int i = staticMetaObject.methodOffset(); i < staticMetaObject.methodCount(); ++i)
        signatures << signatureOf(staticMetaObject.method(i));
    return signatures;
}

void signalRecorder_t::listen(QObject* sender, QByteArray const& signature)
{
    // At once, wherever it was emitted: how else would one see from which thread.
    if (sender->metaObject()->indexOfSignal(signature) >= 0)
        connect(sender, '2' + signature, '1' + signature, Qt::DirectConnection);
    else
        m_missing << signature;
}

void signalRecorder_t::clear()
{
    QMutexLocker const lock(&m_mutex);
    told.clear();
    states.clear();
    m_foreign = false;
}

int signalRecorder_t::count() const
{
    QMutexLocker const lock(&m_mutex);
    return int(told.size());
}

bool signalRecorder_t::cameFromOtherThreads() const
{
    QMutexLocker const lock(&m_mutex);
    return m_foreign;
}

void signalRecorder_t::add(QString const& text)
{
    bool const foreign = QThread::currentThread() != thread();
    // Getters are for the recorder's own thread.
    QString const state = m_state && !foreign ? m_state() : QString();
    QMutexLocker const lock(&m_mutex);
    told << text;
    states << state;
    m_foreign = m_foreign || foreign;
}

} // namespace melvox_proxycheck
