#include "zelSpinBox.h"

namespace zel {

zelSpinBox::zelSpinBox(QWidget* parent)
    : NumberBox<QSpinBox>(parent)
{
}

QString zelSpinBox::textFromValue(int value) const
{
    return locale().toString(value);
}

} // namespace zel
