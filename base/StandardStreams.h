#ifndef ZEL_STANDARDSTREAMS_H
#define ZEL_STANDARDSTREAMS_H

namespace zel {

/// Opens each standard stream that is closed on the null device: otherwise the next file or socket gets its
/// descriptor, and output to the stream goes there. Also ignores SIGPIPE, so that a closed pipe is an error
/// of the write instead of the end of the process. On Windows it only lets the console show UTF-8 until the
/// process ends. Call it first in main().
void protectStandardStreams();

} // namespace zel

#endif
