#include "zelComboBox.h"

namespace zel {

zelComboBox::zelComboBox(QWidget* parent)
    : WheelGuard<QComboBox>(parent)
{
}

} // namespace zel
