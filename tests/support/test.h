#ifndef MELVOX_TEST_H
#define MELVOX_TEST_H

#include <QObject>
#include <QString>
#include <QtTest>

/** What tests stand on. */
namespace melvox_test
{

/** Base of every test class. A warning that Qt or anybody else prints during a test function fails it, so that a
 *  connect to a signal that is not there does not pass unseen. */
class test_t : public QObject
{
    Q_OBJECT

public:
    test_t();
    ~test_t();

protected:
    /** Called before and after each test function. */
    virtual void setUp();
    virtual void tearDown();

private slots:
    void init();
    void cleanup();
};

/** Lets one warning that contains this text pass in the current test function, and fails the function when it does not
 *  come. */
void expectWarning(QString const& part);

/** Lets warnings that contain this text pass in the current test function, however many come. For what the platform
 *  that tests run on cannot do. */
void allowWarnings(QString const& part);

/** Runs the event loop until the condition holds; false when it did not within the time. Tests never just wait. */
template <typename condition_t> bool waitFor(condition_t condition, int milliseconds = 5000)
{
    QElapsedTimer timer;
    timer.start();
    while (!condition())
    {
        if (timer.elapsed() > milliseconds)
            return false;
        QCoreApplication::processEvents(QEventLoop::AllEvents, 20);
        QCoreApplication::sendPostedEvents(0, QEvent::DeferredDelete);
    }
    return true;
}

/** Delivers what is queued now, deferred deletes included. */
void settle();

} // namespace melvox_test

#endif
