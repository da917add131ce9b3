#ifndef ZEL_CHECK_H
#define ZEL_CHECK_H

#include <QString>

#include <cstdlib>
#include <iostream>

/// Ends the run, which makes the fuzzer keep the input, unless a property holds. The details go to the error
/// output.
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
