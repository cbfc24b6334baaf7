#include "proxycheck/adapter.h"
#include "proxycheck/program.h"

#include <QCoreApplication>
#include <QScopedPointer>

int main(int argc, char** argv)
{
    QCoreApplication application(argc, argv);
    QScopedPointer<melvox_proxycheck::adapter_t> const adapter(melvox_proxycheck::createAdapter());
    return melvox_proxycheck::run(application.arguments().mid(1), *adapter);
}
