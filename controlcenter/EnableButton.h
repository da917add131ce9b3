#ifndef ZEL_ENABLEBUTTON_H
#define ZEL_ENABLEBUTTON_H

#include <QPushButton>

namespace zel {

/// Enables or disables a button. One that is disabled gives the focus up to another widget, if that is not
/// null; Qt would hand it on to a neighbour.
inline void enableButton(QPushButton& button, bool enabled, QWidget* successor = nullptr)
{
    // Asked of the window, which has it also while a box lies over it.
    if (!enabled && button.window()->focusWidget() == &button) {
        button.clearFocus();
        if (successor)
            successor->setFocus();
    }
    button.setEnabled(enabled);
}

} // namespace zel

#endif
