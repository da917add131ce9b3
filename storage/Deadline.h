#ifndef ZEL_DEADLINE_H
#define ZEL_DEADLINE_H

#include <QElapsedTimer>

namespace zel {

/// Ends all waits of one operation for other programs, some time after it has begun.
class Deadline
{
public:
    /// @param time  in milliseconds
    explicit Deadline(int time = 3000)
        : m_time(time)
    {
        m_clock.start();
    }

    /// In milliseconds; 0 once it is over.
    int remaining() const { return static_cast<int>(qMax<qint64>(0, m_time - m_clock.elapsed())); }

    /// Does work of others, whose time does not count.
    template <typename Work>
    bool pauseFor(Work work)
    {
        const qint64 begin = m_clock.elapsed();
        const bool isDone = work();
        m_time += m_clock.elapsed() - begin;
        return isDone;
    }

private:
    QElapsedTimer m_clock;
    qint64 m_time;
};

} // namespace zel

#endif
