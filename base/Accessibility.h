#ifndef ZEL_ACCESSIBILITY_H
#define ZEL_ACCESSIBILITY_H

#include <QAccessible>
#include <QWidget>

namespace zel {

/// Lets screen readers read a widget out at once, because it tells of a problem.
inline void alertScreenReaders(QWidget& widget)
{
#if QT_VERSION >= QT_VERSION_CHECK(5, 0, 0)
    QAccessibleEvent event(&widget, QAccessible::Alert);
    QAccessible::updateAccessibility(&event);
#else
    QAccessible::updateAccessibility(&widget, 0, QAccessible::Alert);
#endif
}

} // namespace zel

#endif
