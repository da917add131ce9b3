#ifndef ZEL_CHECK_H
#define ZEL_CHECK_H

#include <QString>

#include <cstdlib>
#include <iostream>

/// Aborts unless a property holds, so that the fuzzer keeps the input. Prints the details on standard error.
template <class... Details>
void check(bool holds, const char* property, const Details&... details)
{
    if (holds)
        return;
    std::cerr << "\nViolated: " << property << '\n';
    ((std::cerr << "  " << QString(details).toStdString() << '\n'), ...);
    std::abort();
}

#endif
