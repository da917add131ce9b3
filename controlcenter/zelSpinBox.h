#ifndef ZEL_ZELSPINBOX_H
#define ZEL_ZELSPINBOX_H

#include "NumberBox.h"
#include "base/ZelExport.h"

#include <QSpinBox>

namespace zel {

/// A spin box for integer numbers that leaves the mouse wheel to the page around it until it has the focus.
/// It groups the digits as its locale does.
class ZEL_EXPORT zelSpinBox : public NumberBox<QSpinBox>
{
    Q_OBJECT

public:
    /// As QSpinBox. The parent, if any, owns it.
    explicit zelSpinBox(QWidget* parent = nullptr);

protected:
    /// The number as the locale of the box writes it.
    QString textFromValue(int value) const override;
};

} // namespace zel

#endif
