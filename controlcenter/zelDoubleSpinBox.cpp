#include "zelDoubleSpinBox.h"

namespace zel {

zelDoubleSpinBox::zelDoubleSpinBox(QWidget* parent)
    : WheelGuard<QDoubleSpinBox>(parent)
{
}

} // namespace zel
