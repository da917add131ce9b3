#ifndef ZEL_CENSUS_H
#define ZEL_CENSUS_H

#include <QAbstractEventDispatcher>
#include <QDir>
#include <QMutex>
#include <QPixmapCache>
#include <QSet>

#include <malloc.h>

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
        qtHookData[added] = reinterpret_cast<quintptr>(+[](QObject* object) {
            const QMutexLocker lock(&mutex);
            alive.insert(object);
        });
        qtHookData[removed] = reinterpret_cast<quintptr>(+[](QObject* object) {
            const QMutexLocker lock(&mutex);
            alive.remove(object);
        });
    }

    static Census take()
    {
        QPixmapCache::clear();
        Census census;
        const QMutexLocker lock(&mutex);
        census.objects = alive.size();
        census.descriptors = int(QDir("/proc/self/fd", "", {}, QDir::AllEntries | QDir::System).count());
        const auto heap = mallinfo2(); // Zeros under a sanitizer, which finds leaks by itself.
        census.heap = qint64(heap.uordblks + heap.hblkhd);
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
    inline static QMutex mutex; // Other threads have objects too.
    inline static QSet<QObject*> alive;
};

#endif
