#ifndef MELVOX_RECEIVER_TRAFFIC_H
#define MELVOX_RECEIVER_TRAFFIC_H

namespace melvox_receiver
{

/** How busy one port is. What is put out waits until the line has taken it, and what would wait for longer than a second
 *  is not put out at all. */
class traffic_t
{
public:
    traffic_t();

    /** Bytes that the line carries in a second, 0 while it carries none. */
    void setCapacity(double bytesPerSecond);

    /** False: there is no room, and the bytes must not be put out. */
    bool putOut(int bytes);
    void takeIn(int bytes);

    void advance(int milliseconds);

    /** Percent of what the line could carry since the last call. */
    void measure(double& txUsage, double& rxUsage);

private:
    double m_capacity;
    double m_waiting;
    double m_sent;
    double m_received;
    double m_possible;
};

/** Bytes per second of a serial line; `config` is a record of the group "serialConfig". */
template <typename map_t> double serialCapacity(map_t const& config)
{
    int const dataBits = config.value("charSize").toInt() == 0 ? 7 : 8;
    int const parityBits = config.value("parity").toInt() == 0 ? 0 : 1;
    int const stopBits = config.value("stopBits").toInt() == 0 ? 1 : 2;
    return config.value("baud").toDouble() / (1 + dataBits + parityBits + stopBits);
}

} // namespace melvox_receiver

#endif
