#ifndef ZEL_UNFINISHEDWRITE_H
#define ZEL_UNFINISHEDWRITE_H

#include <QString>

namespace zel {

/// Guards a file that is rewritten in place: a copy of the old content stands beside it from begin to end. If
/// the process dies in between, the next one to open the file puts the copy back.
class UnfinishedWrite
{
public:
    /// False, with a translated text, when the copy cannot be made. A file that does not exist needs none.
    static bool begin(const QString& path, QString& error);

    /// @param written  false puts the old content back
    static void end(const QString& path, bool written);

    /// Puts back what a killed writer has left unfinished; waits for one that may be alive. The content that
    /// is given up for it is kept as a dated copy.
    static void recover(const QString& path);
};

} // namespace zel

#endif
