#ifndef ZEL_STANDARDSTREAMS_H
#define ZEL_STANDARDSTREAMS_H

namespace zel {

/// Opens the standard streams that the process was started without on the null device, because the first
/// files or connections that it opens would else take their places, and lets no reader that has gone end the
/// process. To be called first of all.
void protectStandardStreams();

} // namespace zel

#endif
