#ifndef MELVOX_RECEIVER_OUTPUT_PLACE_H
#define MELVOX_RECEIVER_OUTPUT_PLACE_H

#include "receiver/receiver.h"

#include <memory>

namespace melvox_receiver
{

/** Where any program can read what the receiver puts out on one of its ports. */
class outputPlace_t : public QObject
{
    Q_OBJECT

public:
    outputPlace_t(receiver_t& receiver, unsigned int port);
    ~outputPlace_t() override;

    /** "tcp:127.0.0.1:5001", "pty:/dev/pts/4". */
    virtual QString description() const = 0;

protected:
    virtual void write(QByteArray const& bytes) = 0;
    /** What whoever reads has sent. */
    void takeIn(QByteArray const& bytes);

private:
    receiver_t& m_receiver;
    unsigned int m_port;
};

/** Makes the place that a text such as "COM2=tcp:5001", "ETH1=tcp:0.0.0.0:5001" or "COM3=pty" means. Null, and `error`
 *  says why and what to do. The receiver must live as long. */
std::unique_ptr<outputPlace_t> makeOutputPlace(receiver_t& receiver, QString const& text, QString& error);

/** "COM1", ...; NUM_PORTS: no port has that name. */
unsigned int portOfName(QString const& name);

} // namespace melvox_receiver

#endif
