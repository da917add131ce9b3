#ifndef ZEL_LIBRARYSTATE_H
#define ZEL_LIBRARYSTATE_H

#include <cstdio>

/// Whether a library is started. Reports errors of the caller on standard error: a second start, or a stop
/// without a start.
class LibraryState
{
public:
    explicit LibraryState(const char* library)
        : m_library(library)
    {
    }

    /// False when the library is already started.
    bool start() { return change(true, "is started twice"); }
    /// False when the library is not started.
    bool stop() { return change(false, "is stopped but was not started"); }

private:
    bool change(bool running, const char* problem)
    {
        const bool changes = m_running != running;
        if (!changes)
            std::fprintf(stderr, "The library %s %s.\n", m_library, problem);
        m_running = running;
        return changes;
    }

    const char* m_library;
    bool m_running = false;
};

#endif
