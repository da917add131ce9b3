#ifndef ZEL_ZELDOUBLESPINBOX_H
#define ZEL_ZELDOUBLESPINBOX_H

#include "NumberBox.h"
#include "base/ZelExport.h"

#include <QDoubleSpinBox>

namespace zel {

/// A spin box for floating-point numbers that ignores the mouse wheel unless it has the focus.
class ZEL_EXPORT zelDoubleSpinBox : public NumberBox<QDoubleSpinBox>
{
    Q_OBJECT

public:
    /// The parent, if any, owns the box.
    explicit zelDoubleSpinBox(QWidget* parent = nullptr);
};

} // namespace zel

#endif
