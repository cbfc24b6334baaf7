#ifndef MELVOX_RECEIVER_STOP_SIGNALS_H
#define MELVOX_RECEIVER_STOP_SIGNALS_H

#include <QObject>
#include <QScopedPointer>
#include <QSocketNotifier>

namespace melvox_receiver
{

/** Turns SIGTERM and SIGINT into a Qt signal. One in a program, for as long as it runs. */
class stopSignals_t : public QObject
{
    Q_OBJECT

public:
    stopSignals_t();
    ~stopSignals_t() override;

signals:
    void stop();

private:
    void take();

    QScopedPointer<QSocketNotifier> m_notifier;
};

} // namespace melvox_receiver

#endif
