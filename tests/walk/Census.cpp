#include "Census.h"

#include <QAbstractEventDispatcher>
#include <QDir>
#include <QMutex>
#include <QPixmapCache>
#include <QSet>

#include <malloc.h>
#ifdef __SANITIZE_ADDRESS__
extern "C" std::size_t __sanitizer_get_current_allocated_bytes();
#endif

// The toolkit's hook for tools that watch its objects.
extern Q_CORE_EXPORT quintptr qtHookData[];

namespace {

const int ObjectAddedHook = 3;
const int ObjectRemovedHook = 4;

QMutex mutex; // Other threads have objects too.
QSet<QObject*> alive;

void note(QObject* object)
{
    const QMutexLocker lock(&mutex);
    alive.insert(object);
}

void forget(QObject* object)
{
    const QMutexLocker lock(&mutex);
    alive.remove(object);
}

qint64 heapInUse()
{
#ifdef __SANITIZE_ADDRESS__
    return qint64(__sanitizer_get_current_allocated_bytes());
#else
    const auto heap = mallinfo2();
    return qint64(heap.uordblks + heap.hblkhd);
#endif
}

} // namespace

void Census::start()
{
    qtHookData[ObjectAddedHook] = reinterpret_cast<quintptr>(&note);
    qtHookData[ObjectRemovedHook] = reinterpret_cast<quintptr>(&forget);
}

Census Census::take()
{
    QPixmapCache::clear();
    Census census;
    const QMutexLocker lock(&mutex);
    census.objects = alive.size();
    census.descriptors =
        QDir("/proc/self/fd").entryList(QDir::NoDotAndDotDot | QDir::AllEntries | QDir::System).size();
    census.heap = heapInUse();
    for (QObject* object : alive) {
        const QString name = object->metaObject()->className();
        // The toolkit's caches tidy themselves up from time to time.
        if (name != "QPMCache" && name != "QFontCache" &&
            !QAbstractEventDispatcher::instance(object->thread())->registeredTimers(object).isEmpty())
            census.withTimer << name;
    }
    return census;
}
