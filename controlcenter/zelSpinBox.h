#ifndef ZEL_ZELSPINBOX_H
#define ZEL_ZELSPINBOX_H

#include "NumberBox.h"
#include "base/ZelExport.h"

#include <QSpinBox>

namespace zel {

/// A spin box for integers that ignores the mouse wheel unless it has the focus. It groups the digits as its
/// locale does.
class ZEL_EXPORT zelSpinBox : public NumberBox<QSpinBox>
{
    Q_OBJECT

public:
    /// The parent, if any, owns the box.
    explicit zelSpinBox(QWidget* parent = nullptr);

protected:
    /// Formats the number by the locale of the box.
    QString textFromValue(int value) const override;
};

} // namespace zel

#endif
