#ifndef ZEL_LOG_H
#define ZEL_LOG_H

class QString;

namespace zel {

/// Writes a warning to the log.
void logWarning(const QString& text);

} // namespace zel

#endif
