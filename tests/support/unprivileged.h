#ifndef MELVOX_TEST_UNPRIVILEGED_H
#define MELVOX_TEST_UNPRIVILEGED_H

#include <QtGlobal>

#include <sys/prctl.h>
#include <unistd.h>

namespace melvox_test
{

/** While it lives, the program may do what any user may: root would read and write what is locked. */
class unprivileged_t
{
public:
    unprivileged_t() : m_wasRoot(getuid() == 0)
    {
        if (m_wasRoot && setresuid(NOBODY, NOBODY, 0) != 0)
            qFatal("root's rights cannot be laid down");
    }
    ~unprivileged_t()
    {
        if (!m_wasRoot)
            return;
        if (setresuid(0, 0, 0) != 0)
            qFatal("root's rights cannot be taken up again");
        // Or the leak check at the end of the program may not look at it.
        prctl(PR_SET_DUMPABLE, 1, 0, 0, 0);
    }

private:
    Q_DISABLE_COPY(unprivileged_t)

    static uid_t const NOBODY = 65534;

    bool m_wasRoot;
};

} // namespace melvox_test

#endif
