"""Prints a program in C that refers to each function and variable which the headers below a folder declare for users, and
which they do not define.
  interface.py FOLDER FLAG...
"""

import glob
import sys

from clang.cindex import AccessSpecifier, AvailabilityKind, CursorKind, Index

SCOPES = {CursorKind.NAMESPACE, CursorKind.CLASS_DECL, CursorKind.STRUCT_DECL, CursorKind.LINKAGE_SPEC,
          CursorKind.UNEXPOSED_DECL, CursorKind.FRIEND_DECL}
SYMBOLS = {CursorKind.FUNCTION_DECL, CursorKind.CXX_METHOD, CursorKind.CONSTRUCTOR, CursorKind.DESTRUCTOR,
           CursorKind.VAR_DECL}


def symbols(cursor, folder):
    for child in cursor.get_children():
        file = child.location.file
        if not file or not file.name.startswith(folder) or child.access_specifier == AccessSpecifier.PRIVATE:
            continue
        if child.kind in SCOPES:
            yield from symbols(child, folder)
        elif (child.kind in SYMBOLS and not child.get_definition() and not child.is_pure_virtual_method()
              and child.availability != AvailabilityKind.NOT_AVAILABLE):
            yield child.mangled_name


folder = sys.argv[1] + "/"
headers = sorted(glob.glob(folder + "**/*.h", recursive=True))
source = "".join('#include "%s"\n' % header for header in headers)
unit = Index.create().parse("all.cpp", ["-std=c++17", "-fPIC", *sys.argv[2:]], [("all.cpp", source)])
problems = [str(diagnostic) for diagnostic in unit.diagnostics if diagnostic.severity >= 3]
if problems:
    sys.exit("\n".join(problems))
names = sorted(set(symbols(unit.cursor, folder)))
print("#include <zel/launch.h>")
for number, name in enumerate(names):
    print('extern char symbol%d __asm__("%s");' % (number, name))
print("void* const symbols[] = {%s};" % ", ".join("&symbol%d" % number for number in range(len(names))))
print("int main(int argc, char** argv)\n{\n    return argc > %d ? launch(argc, argv) : symbols[0] == 0;\n}" % len(names))
