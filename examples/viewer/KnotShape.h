#ifndef VIEWER_KNOTSHAPE_H
#define VIEWER_KNOTSHAPE_H

/// The model of this viewer: a tube that winds around a ring until it meets itself.
struct KnotShape
{
    int windings = 2;       ///< Times around the ring's axis.
    int turns = 3;          ///< Times around the ring itself.
    float thickness = 0.4F; ///< Radius of the tube; that of the ring is 2.
};

#endif
