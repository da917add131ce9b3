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
    SignalBlock(std::initializer_list<QObject*> objects)
    {
        for (QObject* object : objects)
            m_previous.emplace_back(object, object->blockSignals(true));
    }

    /// Restores the previous state of each object.
    ~SignalBlock()
    {
        for (const auto& [object, blocked] : m_previous)
            object->blockSignals(blocked);
    }

    SignalBlock(const SignalBlock&) = delete;
    SignalBlock& operator=(const SignalBlock&) = delete;

private:
    std::vector<std::pair<QObject*, bool>> m_previous;
};

} // namespace zel

#endif
