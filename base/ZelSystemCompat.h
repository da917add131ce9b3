#ifndef ZEL_ZELSYSTEMCOMPAT_H
#define ZEL_ZELSYSTEMCOMPAT_H

// The differences between Windows and other systems in how product code handles processes and names.

#include <QTextCodec>

#if defined(Q_OS_WIN)
#    if !defined(NOMINMAX)
#        define NOMINMAX
#    endif
#    include <windows.h>
#endif

namespace zel {

/// Lets the process that receives the next message put its window in front of others, which Windows allows
/// only to the process that the user has started last.
inline void passForegroundOn()
{
#if defined(Q_OS_WIN)
    AllowSetForegroundWindow(ASFW_ANY);
#endif
}

/// Reads and writes file names and arguments as UTF-8, also in a process without a locale: under the "C"
/// locale Qt replaces each non-ASCII character by a question mark. Windows has Unicode names anyway.
inline void useUtf8FileNames()
{
#if !defined(Q_OS_WIN)
    QTextCodec::setCodecForLocale(QTextCodec::codecForName("UTF-8"));
#endif
}

} // namespace zel

#endif
