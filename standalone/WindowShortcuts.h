#ifndef ZEL_WINDOWSHORTCUTS_H
#define ZEL_WINDOWSHORTCUTS_H

class QWidget;

namespace zel {

/// Gives the commands of a control center their keys in a window that has nothing else with shortcuts, so
/// that they work wherever the focus is: Ctrl+S applies, F1 shows help, Ctrl+Z discards the pending edits,
/// Ctrl+Shift+Z makes them again, Alt with a letter of its text clicks Apply or Reset. Adds the action
/// "close", without a text, which calls the window's slot closeWidget(): Ctrl+Q and Ctrl+W.
void addWindowShortcuts(QWidget& window, const QWidget& controlCenter);

} // namespace zel

#endif
