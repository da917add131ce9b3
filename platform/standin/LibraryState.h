#ifndef ZEL_LIBRARYSTATE_H
#define ZEL_LIBRARYSTATE_H

#include <cstdio>

/// Whether a library runs. Starting it twice, or stopping it when it does not run, is a mistake of the caller
/// and is reported on the error output.
class LibraryState
{
public:
    explicit LibraryState(const char* library)
        : m_library(library)
    {
    }

    /// False when the library runs already.
    bool start() { return change(true, "is started twice"); }
    /// False when the library does not run.
    bool stop() { return change(false, "is stopped but was not started"); }

private:
    bool change(bool running, const char* mistake)
    {
        const bool balanced = m_running != running;
        if (!balanced)
            std::fprintf(stderr, "The library %s %s.\n", m_library, mistake);
        m_running = running;
        return balanced;
    }

    const char* m_library;
    bool m_running = false;
};

#endif
