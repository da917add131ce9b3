#include "zelSpinBox.h"

namespace zel {

zelSpinBox::zelSpinBox(QWidget* parent)
    : WheelGuard<QSpinBox>(parent)
{
}

} // namespace zel
