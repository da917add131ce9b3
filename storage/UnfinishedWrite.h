#ifndef ZEL_UNFINISHEDWRITE_H
#define ZEL_UNFINISHEDWRITE_H

#include <QString>

namespace zel {

/// Guards a file while it is rewritten in place: a copy of the old content stands beside it from begin to
/// end. If the process dies in between, whoever comes next puts the copy back. A copy goes only when its
/// content is elsewhere, or the new one has been written.
class UnfinishedWrite
{
public:
    /// False, with a translated text, when the copy cannot be made. A file that does not exist needs none.
    static bool begin(const QString& path, QString& error);

    /// @param written  false puts the old content back
    static void end(const QString& path, bool written);

    /// Puts the content back that a write of a dead process has left unfinished; waits for one of a living
    /// process. What is given up for it is kept as a dated copy.
    static void recover(const QString& path);
};

} // namespace zel

#endif
