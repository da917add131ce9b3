#ifndef ZEL_LOG_H
#define ZEL_LOG_H

class QString;

namespace zel {

/// @{
/// Write an event of this type to the log.
void logInfo(const QString& text);
void logWarning(const QString& text);
void logError(const QString& text);
/// @}

} // namespace zel

#endif
