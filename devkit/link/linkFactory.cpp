#include "link/linkFactory.h"

#include "link/serialLink.h"
#include "link/tcpLink.h"

#include <QRegularExpression>

namespace melvox_link
{

namespace
{

int const DEFAULT_BAUD = 115200;

link_t* makeTcpLink(QString const& address, QString& error, QObject* parent)
{
    static QRegularExpression const form("^(?:\\[([0-9A-Fa-f:.]+)\\]|([^:]+)):([0-9]{1,5})$");
    QRegularExpressionMatch const match = form.match(address);
    unsigned int const port = match.captured(3).toUInt();
    if (!match.hasMatch() || port < 1 || port > 65535)
    {
        error = QString("\"tcp:%1\" is no address: write tcp:HOST:PORT, such as tcp:127.0.0.1:5000.").arg(address);
        return nullptr;
    }
    QString const host = match.captured(1).isEmpty() ? match.captured(2) : match.captured(1);
    auto* const link = new tcpLink_t(host, quint16(port), parent);
    link->start();
    return link;
}

link_t* makeSerialLink(QString const& text, QString& error, QObject* parent)
{
    static QRegularExpression const form("^([^@]+)(?:@([1-9][0-9]{2,6}))?$");
    QRegularExpressionMatch const match = form.match(text);
    if (!match.hasMatch())
    {
        error = QString("\"serial:%1\" is no serial line: write serial:DEVICE or serial:DEVICE@BAUD, such as "
                        "serial:/dev/ttyS0@115200.")
                    .arg(text);
        return nullptr;
    }
    int const baud = match.captured(2).isEmpty() ? DEFAULT_BAUD : match.captured(2).toInt();
    auto* const link = new serialLink_t(match.captured(1), baud, parent);
    link->start();
    return link;
}

} // namespace

link_t* makeLink(QString const& description, QString& error, QObject* parent)
{
    if (description.startsWith("tcp:"))
        return makeTcpLink(description.mid(4), error, parent);
    if (description.startsWith("serial:"))
        return makeSerialLink(description.mid(7), error, parent);
    error = QString("\"%1\" is no link: write tcp:HOST:PORT or serial:DEVICE.").arg(description);
    return nullptr;
}

} // namespace melvox_link
