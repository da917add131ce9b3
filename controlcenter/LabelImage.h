#ifndef ZEL_LABELIMAGE_H
#define ZEL_LABELIMAGE_H

#include <QIcon>
#include <QLabel>
#include <QString>

namespace zel {

/// Shows an image file in a label, in a square of so many pixels. An icon, unlike a pixmap of the form, also
/// finds the file for screens of double density.
inline void showImage(QLabel& label, const QString& file, int size)
{
    label.setPixmap(QIcon(file).pixmap(size, size));
}

} // namespace zel

#endif
