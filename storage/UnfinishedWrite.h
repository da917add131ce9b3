#ifndef ZEL_UNFINISHEDWRITE_H
#define ZEL_UNFINISHEDWRITE_H

#include <QString>

namespace zel {

/// Protects a file that is rewritten in place: a copy of the old content stands beside it from begin to end.
/// If the process dies in between, the next one that opens the file puts the copy back.
class UnfinishedWrite
{
public:
    /// Makes the copy, if there is a file. False, with a translated text, when that is not possible.
    static bool begin(const QString& path, QString& error);

    /// Removes the copy, or puts it back where the file was not written.
    static void end(const QString& path, bool written);

    /// Puts back the copy that a killed writer has left; waits while that writer may still be alive. The
    /// content that is given up for it is kept as a dated copy.
    static void recover(const QString& path);
};

} // namespace zel

#endif
