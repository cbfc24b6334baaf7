#ifndef MELVOX_LINK_PTY_DEVICE_H
#define MELVOX_LINK_PTY_DEVICE_H

#include <QByteArray>
#include <QIODevice>
#include <QScopedPointer>
#include <QSocketNotifier>
#include <QTimer>

namespace melvox_link
{

/** The near side of a pseudo-terminal pair. Open while somebody has the far side open. */
class ptyDevice_t : public QIODevice
{
    Q_OBJECT

public:
    explicit ptyDevice_t(QObject* parent = nullptr);
    ~ptyDevice_t() override;

    bool create();
    QString path() const;

    bool isSequential() const override;
    qint64 bytesAvailable() const override;
    qint64 bytesToWrite() const override;

signals:
    void arrived();
    void left();

protected:
    qint64 readData(char* data, qint64 size) override;
    qint64 writeData(char const* data, qint64 size) override;

private:
    void lookForFarSide();
    void setRaw();
    void fill();
    void drain();
    void lose();
    bool fail();

    int m_handle;
    QString m_path;
    QByteArray m_in;
    QByteArray m_out;
    QScopedPointer<QSocketNotifier> m_readable;
    QScopedPointer<QSocketNotifier> m_writable;
    QTimer m_timer;
};

} // namespace melvox_link

#endif
