#ifndef ZEL_STYLECOMPAT_H
#define ZEL_STYLECOMPAT_H

#include <QStyle>
#include <QWidget>

namespace zel {

/// False when the style of a widget asks for no animations. Always true before Qt 5.2, whose styles cannot
/// ask.
inline bool isAnimated(const QWidget& widget)
{
#if QT_VERSION >= QT_VERSION_CHECK(5, 2, 0)
    return widget.style()->styleHint(QStyle::SH_Widget_Animate, nullptr, &widget);
#else
    Q_UNUSED(widget)
    return true;
#endif
}

} // namespace zel

#endif
