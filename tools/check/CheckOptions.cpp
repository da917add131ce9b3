#include "CheckOptions.h"

#include "base/VersionNumbers.h"

#include <QFile>

#include <cstdio>

namespace {

using namespace zel;

const char* const Version = "torvane-settings-check " ZEL_MAJOR_MINOR_RELEASE_REVISION "\n";

const char* const Help = R"(
Shows what the viewer and its settings editor will change in settings files when they start: missing and
invalid values, lines that cannot be read, and folders that they have to create. Touches nothing without
--repair. "-" stands for a list of names on standard input: each ends with a zero byte if the list has any
(find -print0), or else with its line.

  --repair    make these changes now; a dated copy of a damaged file is kept beside it
  --json      print one JSON object for each file, on a line of its own
  -h, --help  print this text
  --version   print the version

Exit codes, of which the worst of all files counts; from good to bad:
  0  the file is clean
  4  the file has been repaired
  1  the file needs a repair; nothing has been changed
  2  the file cannot be read, written or repaired, or this report cannot be written
  3  wrong usage

The members of the JSON object, all always there:
  file         the name, with U+FFFD for what is not UTF-8 text
  state        "clean", "needs repair", "repaired" or "not repairable"
  freshStart   true if the editor keeps only the language of the file, and a copy; a repair keeps its values
  damage       what of the file is lost, or that a write was cut short; null if neither
  changes      for each changed value an object of texts: key, old (null if the key is missing), new, reason
  folders      the folders that are missing, or were created
  copy         the copy that holds what the file held before the repair, or null
  error        why the file is not repairable, or null
Later versions may add members, and change texts that are not quoted here.

Only the keys that the library itself registers are checked, not those of the pages
(resources/Defaults.ini). The viewer checks more when it starts, and keys that are unknown here stay as they
are. In a file that does not exist every key is missing; only the editor creates it. The default folders are
those of the user who runs the check: run it as the owner of the file.
)";

FileName decoded(const QByteArray& name)
{
    const QString text = QFile::decodeName(name);
    return {text, QFile::encodeName(text) == name};
}

/// Adds the names on standard input.
void readNames(CheckOptions& options)
{
    // Not with QFile: it does not wait for a slow writer, and takes that for an error of the stream.
    QByteArray list;
    char part[4096];
    while (const size_t length = std::fread(part, 1, sizeof part, stdin))
        list.append(part, static_cast<int>(length));
    for (const QByteArray& name : list.split(list.contains('\0') ? '\0' : '\n')) {
        if (!name.isEmpty())
            options.files.push_back(decoded(name));
    }
    if (std::ferror(stdin)) {
        std::fputs("torvane-settings-check: the list of files cannot be read\n", stderr);
        options.isComplete = false;
    }
}

} // namespace

const char* const zel::Usage = "usage: torvane-settings-check [--repair] [--json] [--] FILE...\n";

bool zel::parse(const std::vector<FileName>& arguments, CheckOptions& options)
{
    bool mayBeOption = true;
    std::vector<FileName> files;
    for (const FileName& argument : arguments) {
        const QString& text = argument.text;
        if (!mayBeOption || !text.startsWith('-') || text == "-")
            files.push_back(argument);
        else if (text == "--")
            mayBeOption = false;
        else if (text == "--repair")
            options.repair = true;
        else if (text == "--json")
            options.json = true;
        else if (text == "--help" || text == "-h")
            options.answer = QByteArray(Usage) + Help;
        else if (text == "--version")
            options.answer = Version;
        else
            return false;
    }
    if (!options.answer.isEmpty())
        return true;
    for (const FileName& file : files) {
        if (file.text.isEmpty())
            return false;
        if (file.text == "-")
            readNames(options);
        else
            options.files.push_back(file);
    }
    return !files.empty();
}
