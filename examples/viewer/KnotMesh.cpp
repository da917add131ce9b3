#include "KnotMesh.h"

#include <algorithm>
#include <cmath>

namespace {

const float FullTurn = 6.2831853F;

QVector3D pointOnRing(float angle)
{
    return QVector3D(2 * std::cos(angle), 2 * std::sin(angle), 0);
}

QVector3D pointOnTube(const KnotShape& shape, float along)
{
    const QVector3D ring = pointOnRing(shape.windings * along);
    const float angle = shape.turns * along;
    return ring + std::cos(angle) * ring / 2 - std::sin(angle) * QVector3D(0, 0, 1);
}

/// A point on the surface of the tube, at two angles: along the tube and around it.
QVector3D pointOnSurface(const KnotShape& shape, float along, float across)
{
    const float step = 1e-3F;
    const QVector3D centre = pointOnTube(shape, along);
    const QVector3D ahead = (pointOnTube(shape, along + step) - centre).normalized();
    const QVector3D side = (centre - pointOnRing(shape.windings * along)).normalized();
    const QVector3D up = QVector3D::crossProduct(ahead, side).normalized();
    return centre + shape.thickness * (std::cos(across) * side + std::sin(across) * up);
}

} // namespace

KnotMesh::KnotMesh(const KnotShape& shape, int facets)
{
    const double stretch = 3.0 * std::max(shape.windings, shape.turns);
    const int across = std::max(3, qRound(std::sqrt(facets / 2.0 / stretch)));
    const int along = std::max(9, qRound(facets / 2.0 / across));

    for (int i = 0; i < along; ++i) {
        for (int j = 0; j < across; ++j) {
            m_points.push_back(pointOnSurface(shape, FullTurn * i / along, FullTurn * j / across));
            const int ring = i * across, nextRing = (i + 1) % along * across, next = (j + 1) % across;
            m_facets.push_back({{ring + j, nextRing + j, nextRing + next}});
            m_facets.push_back({{ring + j, nextRing + next, ring + next}});
        }
    }
}
