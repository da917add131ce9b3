#ifndef ZEL_KQDMGUIPLUGIN_H
#define ZEL_KQDMGUIPLUGIN_H

#include "../base/ZelExport.h"

class QWidget;

/// The plug-in that draws the viewer's interface. Owned by the application.
class ZEL_KERNEL_GUI_EXPORT kqDMGuiPlugin
{
public:
    virtual ~kqDMGuiPlugin();

    /// The widget that shows the 3D scene; null while there is none.
    virtual QWidget* getMainViewWidget() const = 0;
};

#endif
