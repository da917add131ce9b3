#ifndef ZEL_ACCESSIBILITY_H
#define ZEL_ACCESSIBILITY_H

#include <QString>

class QLabel;
class QSlider;
class QWidget;

// What screen readers say of a widget where Qt's own answer is not enough. Make the first call for a widget
// before the widget is shown.

namespace zel {

/// Announces the value of a slider as a text instead of a number.
void announceValue(QSlider& slider, const QString& text);

/// Announces a label as a radio button. To press it sends the label the key Space.
void announceChoice(QLabel& label, bool chosen);

/// Announces a widget as a window, outside of which screen readers ignore the focus. Qt does so only for
/// dialogs and main windows.
void announceWindow(QWidget& window);

/// Shows a label, and announces it as a notice that appears by itself, which is read out at once.
void showNotice(QLabel& label);

/// Reads out the link of a label that the keyboard reaches. Qt tells only of the label.
void announceLinks(QLabel& label);

/// Hides a widget from screen readers, because another widget already says the same.
void keepSilent(QWidget& widget);

} // namespace zel

#endif
