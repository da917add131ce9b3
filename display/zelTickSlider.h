#ifndef ZEL_ZELTICKSLIDER_H
#define ZEL_ZELTICKSLIDER_H

#include "WheelGuard.h"

#include <QSlider>

namespace zel {

/// A horizontal slider that draws its own tick marks below it, in the text colour: Qt draws none when a style
/// sheet styles the handle. It ignores the mouse wheel unless it has the focus.
class zelTickSlider : public WheelGuard<QSlider>
{
    Q_OBJECT

public:
    using WheelGuard<QSlider>::WheelGuard;

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    /// Position of the handle for a value.
    QRect handleRect(int value) const;
};

} // namespace zel

#endif
