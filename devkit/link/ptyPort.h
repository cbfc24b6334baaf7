#ifndef MELVOX_LINK_PTY_PORT_H
#define MELVOX_LINK_PTY_PORT_H

#include "link/streamLink.h"

#include <QScopedPointer>

namespace melvox_link
{

class ptyDevice_t;

/** The receiver's side of a link over a pseudo-terminal: a serial line for displays without the wires. Open while a
 *  display has the other side open. */
class ptyPort_t : public streamLink_t
{
    Q_OBJECT

public:
    explicit ptyPort_t(QObject* parent = nullptr);
    ~ptyPort_t() override;

    /** Makes the pair; false, and errorText() tells, when the system has none left. */
    bool create();
    QString errorText() const;

    /** What a display opens, "/dev/pts/3". */
    QString path() const;

private:
    QScopedPointer<ptyDevice_t> m_device;
};

} // namespace melvox_link

#endif
