#include "zelDoubleSpinBox.h"

namespace zel {

zelDoubleSpinBox::zelDoubleSpinBox(QWidget* parent)
    : NumberBox<QDoubleSpinBox>(parent)
{
}

} // namespace zel
