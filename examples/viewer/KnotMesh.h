#ifndef VIEWER_KNOTMESH_H
#define VIEWER_KNOTMESH_H

#include "KnotShape.h"

#include <QVector3D>

#include <vector>

/// A knot as a mesh of triangles.
class KnotMesh
{
public:
    /// A triangle: indices of its corners, counter-clockwise as seen from outside.
    struct Facet
    {
        int corners[3];
    };

    /// @param facets  the approximate number of facets; at least a few dozen
    KnotMesh(const KnotShape& shape, int facets);

    const std::vector<QVector3D>& points() const { return m_points; }
    const std::vector<Facet>& facets() const { return m_facets; }

    /// Position of a facet along the tube, from 0 to 1.
    float along(std::size_t facet) const
    {
        return static_cast<float>(facet) / static_cast<float>(m_facets.size());
    }

private:
    std::vector<QVector3D> m_points;
    std::vector<Facet> m_facets;
};

#endif
