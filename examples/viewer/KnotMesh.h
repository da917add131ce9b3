#ifndef VIEWER_KNOTMESH_H
#define VIEWER_KNOTMESH_H

#include "KnotShape.h"

#include <QVector3D>

#include <vector>

/// A knot as triangles, the finer the more facets it is given.
class KnotMesh
{
public:
    /// A triangle: indices of its corners, counter-clockwise as seen from outside.
    struct Facet
    {
        int corners[3];
    };

    /// @param facets  how many to make, about; at least a few dozen are made
    KnotMesh(const KnotShape& shape, int facets);

    const std::vector<QVector3D>& points() const { return m_points; }
    const std::vector<Facet>& facets() const { return m_facets; }

    /// Where along the tube a facet lies, from 0 to 1.
    float along(std::size_t facet) const { return float(facet) / float(m_facets.size()); }

private:
    std::vector<QVector3D> m_points;
    std::vector<Facet> m_facets;
};

#endif
