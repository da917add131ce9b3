#ifndef ZEL_ZELTICKSLIDER_H
#define ZEL_ZELTICKSLIDER_H

#include "WheelGuard.h"

#include <QSlider>

namespace zel {

/// A horizontal slider whose tick marks stay visible below it under a style sheet: Qt leaves them
/// out as soon as a sheet draws the handle. They have the sheet's text colour. It takes the mouse wheel only
/// while it has the focus.
class zelTickSlider : public WheelGuard<QSlider>
{
    Q_OBJECT

public:
    explicit zelTickSlider(QWidget* parent = nullptr);

    /// What the value means, for those who cannot see the label beside the slider.
    void setValueText(const QString& text);

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    /// Position of the handle for a value.
    QRect handleRect(int value) const;
};

} // namespace zel

#endif
