#include "proxyRecorder.h"

#include <QMetaMethod>

namespace melvox_test
{

proxyRecorder_t::proxyRecorder_t(brel_common_qt::remoteMelvoxDevice_t* device, state_t const& state) : m_state(state)
{
    QMetaObject const& meta = brel_common_qt::remoteMelvoxDevice_t::staticMetaObject;
    for (int i = meta.methodOffset(); i < meta.methodCount(); ++i)
    {
        QMetaMethod const method = meta.method(i);
        if (method.methodType() != QMetaMethod::Signal)
            continue;
#if QT_VERSION < 0x050000
        QByteArray const signature = method.signature();
#else
        QByteArray const signature = method.methodSignature();
#endif
        // A signal that has no slot here makes connect() complain, and that fails the test.
        connect(device, QByteArray('2' + signature).constData(), QByteArray('1' + signature).constData());
    }
}

} // namespace melvox_test
