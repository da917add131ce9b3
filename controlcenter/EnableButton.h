#ifndef ZEL_ENABLEBUTTON_H
#define ZEL_ENABLEBUTTON_H

#include <QPushButton>

namespace zel {

/// Enables or disables a button. One that is disabled gives up the focus, which the toolkit would otherwise
/// hand on to a neighbour.
inline void enableButton(QPushButton& button, bool enabled)
{
    // Asked of the window, which has it also while a box lies over it.
    if (!enabled && button.window()->focusWidget() == &button)
        button.clearFocus();
    button.setEnabled(enabled);
}

} // namespace zel

#endif
