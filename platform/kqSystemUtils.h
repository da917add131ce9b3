#ifndef ZEL_KQSYSTEMUTILS_H
#define ZEL_KQSYSTEMUTILS_H

#include "../base/ZelExport.h"

#include <string>

/// Facts about the operating system and its user.
class KQ_SYSTEM_EXPORT kqSystemUtils
{
public:
    /// Name of the current user's account, in UTF-8.
    static std::string GetCurrentUserNameUtf8();
};

#endif
