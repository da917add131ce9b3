#ifndef ZEL_ZELDOUBLESPINBOX_H
#define ZEL_ZELDOUBLESPINBOX_H

#include "NumberBox.h"
#include "base/ZelExport.h"

#include <QDoubleSpinBox>

namespace zel {

/// A spin box for floating-point numbers that leaves the mouse wheel to the page around it until it has the
/// focus.
class ZEL_EXPORT zelDoubleSpinBox : public NumberBox<QDoubleSpinBox>
{
    Q_OBJECT

public:
    /// As QDoubleSpinBox. The parent, if any, owns it.
    explicit zelDoubleSpinBox(QWidget* parent = nullptr);
};

} // namespace zel

#endif
