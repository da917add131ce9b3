#ifndef ZEL_ZELSPINBOX_H
#define ZEL_ZELSPINBOX_H

#include "WheelGuard.h"
#include "base/ZelExport.h"

#include <QSpinBox>

namespace zel {

/// A spin box for integer numbers that leaves the mouse wheel to the page around it until it has the focus.
class ZEL_EXPORT zelSpinBox : public WheelGuard<QSpinBox>
{
    Q_OBJECT

public:
    /// As QSpinBox. The parent, if any, owns it.
    explicit zelSpinBox(QWidget* parent = nullptr);
};

} // namespace zel

#endif
