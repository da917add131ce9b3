#ifndef ZEL_ENABLEBUTTON_H
#define ZEL_ENABLEBUTTON_H

#include <QPushButton>

namespace zel {

/// Enables or disables a button. One that is disabled gives up the focus, which the toolkit would otherwise
/// hand on to a neighbour.
inline void enableButton(QPushButton& button, bool enabled)
{
    if (!enabled && button.hasFocus())
        button.clearFocus();
    button.setEnabled(enabled);
}

} // namespace zel

#endif
