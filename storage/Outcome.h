#ifndef ZEL_OUTCOME_H
#define ZEL_OUTCOME_H

namespace zel {

/// What an attempt to write the file has come to.
enum class Outcome {
    InPlace,
    Outdated, ///< Another program has changed the file since it was copied, which is the reason then.
    GivenUp,  ///< The change did not succeed, and has said why. No value is changed.
    Failed    ///< The reason is set. Nothing is changed, or a spare copy is left for SpareCopy::finish().
};

} // namespace zel

#endif
