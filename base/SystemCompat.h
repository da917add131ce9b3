#ifndef ZEL_SYSTEMCOMPAT_H
#define ZEL_SYSTEMCOMPAT_H

// The differences between Windows and other systems in how product code handles processes and names.

#include <QCoreApplication>
#include <QStringList>
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

/// What follows the name of the program on its command line. On Windows Qt 4.8 takes an apostrophe for a
/// quotation mark. Needs the application object.
inline QStringList programArguments()
{
    QStringList arguments;
#if defined(Q_OS_WIN)
    int count = 0;
    wchar_t** const texts = CommandLineToArgvW(GetCommandLineW(), &count);
    for (int index = 0; index < count; ++index)
        arguments << QString::fromWCharArray(texts[index]);
    LocalFree(texts);
#else
    arguments = QCoreApplication::arguments();
#endif
    arguments.removeFirst();
    return arguments;
}

} // namespace zel

#endif
