#ifndef ZEL_CHECKOPTIONS_H
#define ZEL_CHECKOPTIONS_H

#include <QByteArray>
#include <QString>

#include <vector>

namespace zel {

/// A name as the user gave it. Decoding changes one that is not UTF-8, so that it names another file.
struct FileName
{
    QString text;
    bool isText; ///< False when it is not UTF-8.
};

/// What a command line asks for.
struct CheckOptions
{
    bool repair = false;
    bool json = false;
    QByteArray answer; ///< What to print instead of a check; empty for a check.
    std::vector<FileName> files;
    bool isComplete = true; ///< False when the list of files cannot be read to its end.
};

/// How the program is called.
extern const char* const Usage;

/// Reads a command line, and the names on standard input if it asks for them. False when an option is
/// unknown, or there is nothing to do.
bool parse(const std::vector<FileName>& arguments, CheckOptions& options);

} // namespace zel

#endif
