#ifndef ZEL_CENSUS_H
#define ZEL_CENSUS_H

#include <QStringList>

/// What the process holds at the moment.
struct Census
{
    int objects = 0;       ///< The toolkit's objects, from the first call of start() on.
    int descriptors = 0;   ///< Open files, sockets and pipes.
    qint64 heap = 0;       ///< Bytes in use.
    QStringList withTimer; ///< Classes of the objects that have a timer running.

    /// Begins to count objects.
    static void start();
    static Census take();
};

#endif
