#ifndef VIEWER_KNOTSHAPE_H
#define VIEWER_KNOTSHAPE_H

#include <QString>

/// The document of this viewer: a tube that winds around a ring until it meets itself.
struct KnotShape
{
    int windings = 2;       ///< Times around the ring's axis, 1 to 9.
    int turns = 3;          ///< Times around the ring itself, 0 to 9.
    double thickness = 0.4; ///< Radius of the tube, 0.1 to 1; the ring's is 2.

    /// Reads a file; values out of range are clamped. False, with an error text, when it is not a knot.
    bool load(const QString& file, QString& error);
    bool save(const QString& file, QString& error) const;
};

#endif
