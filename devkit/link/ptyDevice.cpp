#include "link/ptyDevice.h"

#include <QFile>
#include <QPointer>

#include <algorithm>
#include <cerrno>
#include <cstring>

#include <fcntl.h>
#include <poll.h>
#include <stdlib.h>
#include <termios.h>
#include <unistd.h>

namespace melvox_link
{

namespace
{

int const LOOK_INTERVAL = 100; // milliseconds

}

ptyDevice_t::ptyDevice_t(QObject* parent) : QIODevice(parent), m_handle(-1)
{
    m_timer.setInterval(LOOK_INTERVAL);
    connect(&m_timer, &QTimer::timeout, this, &ptyDevice_t::lookForFarSide);
}

ptyDevice_t::~ptyDevice_t()
{
    m_readable.reset();
    m_writable.reset();
    if (m_handle >= 0)
        ::close(m_handle);
}

bool ptyDevice_t::fail()
{
    setErrorString(QString::fromLocal8Bit(std::strerror(errno)));
    return false;
}

bool ptyDevice_t::create()
{
    m_handle = ::posix_openpt(O_RDWR | O_NOCTTY | O_NONBLOCK | O_CLOEXEC);
    if (m_handle < 0 || ::grantpt(m_handle) != 0 || ::unlockpt(m_handle) != 0)
        return fail();
    char const* const name = ::ptsname(m_handle);
    if (!name)
        return fail();
    m_path = QFile::decodeName(name);
    // Only a far side that was open once and is closed again can be told from one that is open.
    int const farSide = ::open(name, O_RDWR | O_NOCTTY | O_CLOEXEC);
    if (farSide < 0)
        return fail();
    ::close(farSide);

    m_readable.reset(new QSocketNotifier(m_handle, QSocketNotifier::Read));
    m_writable.reset(new QSocketNotifier(m_handle, QSocketNotifier::Write));
    m_readable->setEnabled(false);
    m_writable->setEnabled(false);
    connect(m_readable.data(), &QSocketNotifier::activated, this, &ptyDevice_t::fill);
    connect(m_writable.data(), &QSocketNotifier::activated, this, &ptyDevice_t::drain);
    m_timer.start();
    return true;
}

QString ptyDevice_t::path() const
{
    return m_path;
}

/** The settings of a pseudo-terminal are forgotten whenever its far side is closed. */
void ptyDevice_t::setRaw()
{
    termios settings;
    if (::tcgetattr(m_handle, &settings) != 0)
        return;
    ::cfmakeraw(&settings);
    ::tcsetattr(m_handle, TCSANOW, &settings);
}

void ptyDevice_t::lookForFarSide()
{
    pollfd state = {m_handle, POLLIN, 0};
    if (::poll(&state, 1, 0) < 0 || (state.revents & POLLHUP))
        return;
    m_timer.stop();
    setRaw();
    m_in.clear();
    m_out.clear();
    open(QIODevice::ReadWrite | QIODevice::Unbuffered);
    m_readable->setEnabled(true);
    emit arrived();
}

void ptyDevice_t::lose()
{
    m_readable->setEnabled(false);
    m_writable->setEnabled(false);
    if (isOpen())
        close();
    m_timer.start();
    emit left();
}

void ptyDevice_t::fill()
{
    char chunk[4096];
    ssize_t const count = ::read(m_handle, chunk, sizeof chunk);
    if (count < 0 && (errno == EAGAIN || errno == EINTR))
        return;
    if (count <= 0)
    {
        lose();
        return;
    }
    m_in.append(chunk, int(count));
    emit readyRead();
}

void ptyDevice_t::drain()
{
    while (!m_out.isEmpty())
    {
        ssize_t const count = ::write(m_handle, m_out.constData(), size_t(m_out.size()));
        if (count <= 0)
            break;
        m_out.remove(0, int(count));
    }
    m_writable->setEnabled(!m_out.isEmpty());
}

bool ptyDevice_t::isSequential() const
{
    return true;
}

qint64 ptyDevice_t::bytesAvailable() const
{
    return m_in.size() + QIODevice::bytesAvailable();
}

qint64 ptyDevice_t::bytesToWrite() const
{
    return m_out.size();
}

qint64 ptyDevice_t::readData(char* data, qint64 size)
{
    qint64 const count = std::min<qint64>(size, m_in.size());
    std::memcpy(data, m_in.constData(), size_t(count));
    m_in.remove(0, int(count));
    return count;
}

qint64 ptyDevice_t::writeData(char const* data, qint64 size)
{
    m_out.append(data, int(size));
    m_writable->setEnabled(true);
    return size;
}

} // namespace melvox_link
