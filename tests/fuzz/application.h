#ifndef MELVOX_FUZZ_APPLICATION_H
#define MELVOX_FUZZ_APPLICATION_H

#include <QApplication>

namespace melvox_fuzz
{

/** For targets that need widgets: neither the fuzzer nor the replay makes one. */
inline void needApplication()
{
    static int argc = 1;
    static char name[] = "fuzz";
    static char* argv[] = {name, nullptr};
    static QApplication const application(argc, argv);
}

} // namespace melvox_fuzz

#endif
