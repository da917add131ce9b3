#ifndef ZEL_ANNOUNCEMENT_H
#define ZEL_ANNOUNCEMENT_H

#include <QString>

namespace zel {

/// Tells the user of something in the log and on standard output.
/// @param type  as MTLogger::Log takes it
void announce(const char* type, const QString& text);

/// Sets and announces the error text; false, for the caller to return.
bool fail(const QString& text, QString& error);

/// From now on announcements go to the log alone, because standard output is for something else.
void announceInLogOnly();

} // namespace zel

#endif
