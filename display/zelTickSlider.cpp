#include "zelTickSlider.h"

#include <QPainter>
#include <QStyleOptionSlider>

namespace zel {

namespace {

// In pixels.
const int TickDistance = 2; // from the handle
const int TickLength = 4;
const int MinimumTickSpacing = 4;

} // namespace

void zelTickSlider::paintEvent(QPaintEvent* event)
{
    QSlider::paintEvent(event);

    const int steps = maximum() - minimum();
    const int length = qAbs(handleRect(maximum()).left() - handleRect(minimum()).left());
    int interval = 1;
    while (interval < steps && length * interval < MinimumTickSpacing * steps)
        interval *= 2;

    QPainter painter(this);
    painter.setPen(palette().color(QPalette::WindowText));
    for (int value = minimum(); value <= maximum(); value += interval) {
        const QPoint top(handleRect(value).center().x(), handleRect(value).bottom() + TickDistance);
        painter.drawLine(top, top + QPoint(0, TickLength - 1));
    }
}

QRect zelTickSlider::handleRect(int value) const
{
    QStyleOptionSlider option;
    initStyleOption(&option);
    option.sliderPosition = value;
    return style()->subControlRect(QStyle::CC_Slider, &option, QStyle::SC_SliderHandle, this);
}

} // namespace zel
