#ifndef ZEL_ZELDIRECTORY_H
#define ZEL_ZELDIRECTORY_H

#include "../base/ZelExport.h"

#include <string>

/// Folders of the viewer's kernel.
class ZEL_KERNEL_EXPORT ZelDirectory
{
public:
    /// The current user's folder for an application's temporary data, in UTF-8. The folder may not exist.
    static std::string GetTempFolderUtf8(const std::string& applicationNameUtf8);
};

#endif
