#ifndef ZEL_SIGNALBLOCK_H
#define ZEL_SIGNALBLOCK_H

#include <QObject>

#include <initializer_list>
#include <utility>
#include <vector>

namespace zel {

/// Blocks the signals of objects while it lives, so that a page can fill its widgets without emitting edits.
class SignalBlock
{
public:
    /// Blocks the signals of these objects, which must outlive it.
    SignalBlock(std::initializer_list<QObject*> objects) { block(objects); }
    /// The same for a container of pointers.
    template <class Objects>
    explicit SignalBlock(const Objects& objects)
    {
        block(objects);
    }

    /// Restores the previous state of each object.
    ~SignalBlock()
    {
        // Backwards, because an object may be there twice.
        for (auto each = m_previous.rbegin(); each != m_previous.rend(); ++each)
            each->first->blockSignals(each->second);
    }

    SignalBlock(const SignalBlock&) = delete;
    SignalBlock& operator=(const SignalBlock&) = delete;

private:
    template <class Objects>
    void block(const Objects& objects)
    {
        for (QObject* object : objects)
            m_previous.emplace_back(object, object->blockSignals(true));
    }

    std::vector<std::pair<QObject*, bool>> m_previous;
};

} // namespace zel

#endif
