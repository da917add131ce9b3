#ifndef ZEL_KQDMPLUGIN_H
#define ZEL_KQDMPLUGIN_H

#include "../base/ZelExport.h"

#include <QString>

/// A plug-in that the viewer has loaded. Owned by the application.
class ZEL_KERNEL_EXPORT kqDMPlugin
{
public:
    virtual ~kqDMPlugin();

    /// Name of the plug-in, for users to read.
    virtual QString getName() const = 0;
    /// Version of the plug-in, for users to read; may be empty.
    virtual QString getVersion() const = 0;
};

#endif
