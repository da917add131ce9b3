#ifndef ZEL_KQDIRUTILS_H
#define ZEL_KQDIRUTILS_H

#include "../base/ZelExport.h"

#include <string>

/// Folders of the operating system.
class KQ_SYSTEM_EXPORT kqDirUtils
{
public:
    /// The folder in which applications keep the current user's data, in UTF-8.
    static std::string GetAppDataFolderUtf8();
};

#endif
