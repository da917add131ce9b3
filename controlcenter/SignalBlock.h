#ifndef ZEL_SIGNALBLOCK_H
#define ZEL_SIGNALBLOCK_H

#include <QObject>

#include <initializer_list>
#include <utility>
#include <vector>

namespace zel {

/// Keeps objects from emitting signals for as long as it lives, so that filling a widget does not look like
/// an edit.
class SignalBlock
{
public:
    /// Blocks the signals of these objects, which must outlive it.
    SignalBlock(std::initializer_list<QObject*> objects)
    {
        for (QObject* object : objects)
            m_former.emplace_back(object, object->blockSignals(true));
    }

    /// Puts each object back into the state in which it was.
    ~SignalBlock()
    {
        for (const auto& [object, blocked] : m_former)
            object->blockSignals(blocked);
    }

    SignalBlock(const SignalBlock&) = delete;
    SignalBlock& operator=(const SignalBlock&) = delete;

private:
    std::vector<std::pair<QObject*, bool>> m_former;
};

} // namespace zel

#endif
