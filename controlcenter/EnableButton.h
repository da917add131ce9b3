#ifndef ZEL_ENABLEBUTTON_H
#define ZEL_ENABLEBUTTON_H

#include <QPushButton>

namespace zel {

/// Enables or disables a button. When a disabled button has the focus, the successor gets it, or no widget if
/// that is null; Qt would choose a neighbour.
inline void enableButton(QPushButton& button, bool enabled, QWidget* successor = nullptr)
{
    // QWidget::hasFocus() is false while a dialog is active.
    if (!enabled && button.window()->focusWidget() == &button) {
        button.clearFocus();
        if (successor)
            successor->setFocus();
    }
    button.setEnabled(enabled);
}

} // namespace zel

#endif
