#ifndef ZEL_ZELACCESSIBILITY_H
#define ZEL_ZELACCESSIBILITY_H

#include <QString>

class QLabel;
class QSlider;
class QWidget;

// What assistive technology is told where Qt's own answer is not enough. The first call for a widget has to
// come before the widget is shown.

namespace zel {

/// Announces the value of a slider by a text instead of a number.
void announceValue(QSlider& slider, const QString& text);

/// Announces a label as one of several choices, of which one is chosen. Pressing it is a press of Space.
void announceChoice(QLabel& label, bool chosen);

/// Leaves out a widget that says nothing of its own, because another one says it for it.
void leaveUnannounced(QWidget& widget);

/// Has a widget read out at once, because it tells of a problem.
void alertAbout(QWidget& widget);

} // namespace zel

#endif
