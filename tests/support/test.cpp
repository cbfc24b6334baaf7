#include "support/test.h"

#include <QMutex>
#include <QMutexLocker>
#include <QStringList>

#include <cstdio>

namespace melvox_test
{

namespace
{

// Warnings may come from any thread.
QMutex mutex;
QStringList unexpected;
QStringList expected;
QStringList allowed;

bool isHarmless(QString const& text)
{
    for (int i = 0; i < allowed.size(); ++i)
    {
        if (text.contains(allowed.at(i)))
            return true;
    }
    // Printed by the offscreen platform plug-in whenever a window asks to be kept at a size.
    return text.contains("propagateSizeHints");
}

void take(QString const& text)
{
    QMutexLocker lock(&mutex);
    for (int i = 0; i < expected.size(); ++i)
    {
        if (text.contains(expected.at(i)))
        {
            expected.removeAt(i);
            return;
        }
    }
    if (!isHarmless(text))
        unexpected << text;
}

#if QT_VERSION < 0x050000

QtMsgHandler previous = 0;

void handle(QtMsgType type, char const* text)
{
    if (type == QtDebugMsg || type == QtFatalMsg)
        std::fprintf(stderr, "%s\n", text);
    else
        take(QString::fromLocal8Bit(text));
}

void installHandler()
{
    previous = qInstallMsgHandler(&handle);
}

void removeHandler()
{
    qInstallMsgHandler(previous);
}

#else

QtMessageHandler previous = 0;

void handle(QtMsgType type, QMessageLogContext const&, QString const& text)
{
    if (type == QtDebugMsg || type == QtInfoMsg || type == QtFatalMsg)
        std::fprintf(stderr, "%s\n", qPrintable(text));
    else
        take(text);
}

void installHandler()
{
    previous = qInstallMessageHandler(&handle);
}

void removeHandler()
{
    qInstallMessageHandler(previous);
}

#endif

} // namespace

test_t::test_t()
{
}

test_t::~test_t()
{
}

void test_t::setUp()
{
}

void test_t::tearDown()
{
}

void test_t::init()
{
    unexpected.clear();
    expected.clear();
    allowed.clear();
    installHandler();
    setUp();
}

void test_t::cleanup()
{
    tearDown();
    settle();
    removeHandler();
    QMutexLocker lock(&mutex);
    QStringList const came = unexpected;
    QStringList const missed = expected;
    lock.unlock();
    QVERIFY2(came.isEmpty(), qPrintable("warning: " + came.join("\nwarning: ")));
    QVERIFY2(missed.isEmpty(), qPrintable("this warning did not come: " + missed.join("\n")));
}

void expectWarning(QString const& part)
{
    QMutexLocker lock(&mutex);
    expected << part;
}

void allowWarnings(QString const& part)
{
    QMutexLocker lock(&mutex);
    allowed << part;
}

void settle()
{
    QCoreApplication::sendPostedEvents();
    QCoreApplication::processEvents();
    QCoreApplication::sendPostedEvents(0, QEvent::DeferredDelete);
}

} // namespace melvox_test
