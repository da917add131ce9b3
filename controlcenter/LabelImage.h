#ifndef ZEL_LABELIMAGE_H
#define ZEL_LABELIMAGE_H

#include <QIcon>
#include <QLabel>
#include <QString>

namespace zel {

/// Shows an image file in a label, in a square with this side in pixels. Unlike a pixmap in the form, QIcon
/// also finds the "@2x" file for high-density screens.
inline void showImage(QLabel& label, const QString& file, int size)
{
    label.setPixmap(QIcon(file).pixmap(size, size));
}

} // namespace zel

#endif
