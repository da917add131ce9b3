#ifndef ZEL_CENSUS_H
#define ZEL_CENSUS_H

#include <QAbstractEventDispatcher>
#include <QDir>
#include <QMutex>
#include <QPixmapCache>
#include <QSet>

#if defined(_WIN32)
#    include <windows.h>
// After it.
#    include <psapi.h>
#else
#    include <malloc.h>
#endif
#ifdef __SANITIZE_ADDRESS__
extern "C" std::size_t __sanitizer_get_current_allocated_bytes();
#endif

// Qt's hook for tools that watch its objects.
extern Q_CORE_EXPORT quintptr qtHookData[];

/// The resources that the process holds at the moment.
struct Census
{
    int objects = 0;       ///< QObjects, from the first call of start() on.
    int descriptors = 0;   ///< Open files, sockets and pipes.
    qint64 heap = 0;       ///< Bytes in use.
    QStringList withTimer; ///< Classes of the objects that have a timer running.

    /// Begins to count objects.
    static void start()
    {
        const int added = 3, removed = 4;
        qtHookData[added] = reinterpret_cast<quintptr>(&note<true>);
        qtHookData[removed] = reinterpret_cast<quintptr>(&note<false>);
    }

    static Census take()
    {
        QPixmapCache::clear();
        Census census;
        const QMutexLocker lock(&mutex);
        census.objects = alive.size();
        census.descriptors = openDescriptors();
        census.heap = heapInUse();
        for (QObject* object : alive) {
            const QString name = object->metaObject()->className();
            // Qt clears its caches from time to time.
            if (name != "QPMCache" && name != "QFontCache" &&
                !QAbstractEventDispatcher::instance(object->thread())->registeredTimers(object).isEmpty())
                census.withTimer << name;
        }
        return census;
    }

private:
    template <bool IsAlive>
    static void note(QObject* object)
    {
        const QMutexLocker lock(&mutex);
        if (IsAlive)
            alive.insert(object);
        else
            alive.remove(object);
    }

    static int openDescriptors()
    {
#if defined(_WIN32)
        DWORD handles = 0;
        GetProcessHandleCount(GetCurrentProcess(), &handles);
        return int(handles);
#else
        return int(QDir("/proc/self/fd", "", {}, QDir::AllEntries | QDir::System).count());
#endif
    }

    static qint64 heapInUse()
    {
#if defined(_WIN32)
        PROCESS_MEMORY_COUNTERS_EX memory = {};
        GetProcessMemoryInfo(GetCurrentProcess(), reinterpret_cast<PROCESS_MEMORY_COUNTERS*>(&memory),
                             sizeof(memory));
        return qint64(memory.PrivateUsage);
#elif defined(__SANITIZE_ADDRESS__)
        return qint64(__sanitizer_get_current_allocated_bytes());
#else
        const auto heap = mallinfo2();
        return qint64(heap.uordblks + heap.hblkhd);
#endif
    }

    inline static QMutex mutex; // Other threads have objects too.
    inline static QSet<QObject*> alive;
};

#endif
