#ifndef ZEL_SLIDE_H
#define ZEL_SLIDE_H

#include "base/StyleCompat.h"

#include <QPropertyAnimation>

namespace zel {

const int SlideTime = 350; // ms

/// Starts a slide; where the style animates nothing, it ends at once.
inline void startSlide(QPropertyAnimation& slide, const QWidget& widget)
{
    slide.start();
    if (!isAnimated(widget))
        slide.setCurrentTime(slide.direction() == QAbstractAnimation::Forward ? slide.duration() : 0);
}

} // namespace zel

#endif
