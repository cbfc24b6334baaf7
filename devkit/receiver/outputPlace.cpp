#include "receiver/outputPlace.h"

#include "link/ptyDevice.h"

#include <QCoreApplication>
#include <QHostAddress>
#include <QStringList>
#include <QTcpServer>
#include <QTcpSocket>

namespace melvox_receiver
{

namespace
{

qint64 const MOST_UNSENT = 1024 * 1024; // bytes that wait for a reader; what comes beyond is lost to it
int const MOST_READERS = 32;

QString tr(char const* text)
{
    return QCoreApplication::translate("melvox_receiver", text);
}

class tcpOutput_t : public outputPlace_t
{
public:
    tcpOutput_t(receiver_t& receiver, unsigned int port) : outputPlace_t(receiver, port)
    {
        connect(&m_server, &QTcpServer::newConnection, this, &tcpOutput_t::accept);
    }

    bool listen(QHostAddress const& address, quint16 port) { return m_server.listen(address, port); }
    QString errorText() const { return m_server.errorString(); }

    QString description() const override
    {
        return QString("tcp:%1:%2").arg(m_server.serverAddress().toString()).arg(m_server.serverPort());
    }

protected:
    void write(QByteArray const& bytes) override
    {
        for (QTcpSocket* reader : m_readers)
        {
            if (reader->bytesToWrite() <= MOST_UNSENT)
                reader->write(bytes);
        }
    }

private:
    void accept()
    {
        while (QTcpSocket* const reader = m_server.nextPendingConnection())
        {
            if (m_readers.size() == MOST_READERS)
            {
                reader->abort();
                reader->deleteLater();
                continue;
            }
            m_readers << reader;
            connect(reader, &QTcpSocket::readyRead, this, [this, reader]() { takeIn(reader->readAll()); });
            connect(reader, &QTcpSocket::disconnected, this,
                    [this, reader]()
                    {
                        m_readers.removeAll(reader);
                        reader->deleteLater();
                    });
        }
    }

    QTcpServer m_server;
    QList<QTcpSocket*> m_readers; //!< the server's
};

class ptyOutput_t : public outputPlace_t
{
public:
    ptyOutput_t(receiver_t& receiver, unsigned int port) : outputPlace_t(receiver, port)
    {
        connect(&m_device, &QIODevice::readyRead, this, [this]() { takeIn(m_device.readAll()); });
    }

    bool create() { return m_device.create(); }
    QString errorText() const { return m_device.errorString(); }
    QString description() const override { return "pty:" + m_device.path(); }

protected:
    void write(QByteArray const& bytes) override
    {
        if (m_device.isOpen() && m_device.bytesToWrite() <= MOST_UNSENT)
            m_device.write(bytes);
    }

private:
    melvox_link::ptyDevice_t m_device;
};

std::unique_ptr<outputPlace_t> makeTcpOutput(receiver_t& receiver, unsigned int receiverPort, QString const& text,
                                             QString& error)
{
    int const colon = int(text.lastIndexOf(':'));
    QHostAddress address(QHostAddress::LocalHost);
    bool isNumber = false;
    quint16 const port = text.mid(colon + 1).toUShort(&isNumber);
    if (!isNumber || (colon >= 0 && !address.setAddress(text.left(colon))))
    {
        error = tr("\"%1\" is no TCP port: give a number from 0 to 65535, with an address and a colon before it if "
                   "readers come from other machines.")
                    .arg(text);
        return nullptr;
    }
    auto place = std::make_unique<tcpOutput_t>(receiver, receiverPort);
    if (place->listen(address, port))
        return place;
    error = tr("cannot listen on TCP port %1 (%2): choose another one, or 0 for any that is free.")
                .arg(text, place->errorText());
    return nullptr;
}

std::unique_ptr<outputPlace_t> makePtyOutput(receiver_t& receiver, unsigned int receiverPort, QString& error)
{
    auto place = std::make_unique<ptyOutput_t>(receiver, receiverPort);
    if (place->create())
        return place;
    error = tr("the system gives no pseudo-terminal (%1): close some programs and try again.").arg(place->errorText());
    return nullptr;
}

} // namespace

outputPlace_t::outputPlace_t(receiver_t& receiver, unsigned int port) : m_receiver(receiver), m_port(port)
{
    connect(&receiver, &receiver_t::portOutput, this,
            [this](unsigned int from, QByteArray const& bytes)
            {
                if (from == m_port)
                    write(bytes);
            });
}

outputPlace_t::~outputPlace_t() = default;

void outputPlace_t::takeIn(QByteArray const& bytes)
{
    m_receiver.takeIn(m_port, bytes);
}

unsigned int portOfName(QString const& name)
{
    static QStringList const names = {"COM1", "COM2", "COM3", "COM4", "USB1", "USB2", "ETH1",
                                      "ETH2", "ETH3", "ETH4", "ETH5", "ETH6", "ETH7", "ETH8"};
    int const index = int(names.indexOf(name));
    return index < 0 ? NUM_PORTS : static_cast<unsigned int>(index);
}

std::unique_ptr<outputPlace_t> makeOutputPlace(receiver_t& receiver, QString const& text, QString& error)
{
    unsigned int const port = portOfName(text.section('=', 0, 0));
    QString const place = text.section('=', 1);
    if (port < NUM_PORTS && place.startsWith("tcp:"))
        return makeTcpOutput(receiver, port, place.mid(4), error);
    if (port < NUM_PORTS && place == "pty")
        return makePtyOutput(receiver, port, error);
    error = tr("\"%1\" names no output: give a port of the receiver and where to read it, such as COM2=tcp:5001 or "
               "COM2=pty.")
                .arg(text);
    return nullptr;
}

} // namespace melvox_receiver
