#ifndef ZEL_ZELCOMBOBOX_H
#define ZEL_ZELCOMBOBOX_H

#include "WheelGuard.h"

#include <QComboBox>

namespace zel {

/// A combo box that ignores the mouse wheel unless it has the focus.
class zelComboBox : public WheelGuard<QComboBox>
{
    Q_OBJECT

public:
    explicit zelComboBox(QWidget* parent = nullptr);
};

} // namespace zel

#endif
