#ifndef VIEWER_VIEWERSCENE_H
#define VIEWER_VIEWERSCENE_H

#include "KnotMesh.h"
#include "KnotShape.h"

#include <QCache>
#include <QObject>

#include <memory>
#include <vector>

/// The model, and how much of it is shown: a simplification level keeps a part of the triangles, and the
/// triangle cap limits their number.
class ViewerScene : public QObject
{
    Q_OBJECT

public:
    static const int LevelCount = 5;
    static const int ModelTriangles = 600000;

    /// QPainter is slower than a graphics card, so each painted facet stands for many triangles.
    static const int TrianglesPerFacet = 100;

    explicit ViewerScene(QObject* parent = nullptr);

    /// The level that is shown, from 1 (everything) to LevelCount.
    int level() const { return m_level; }
    void setLevel(int level);

    void setTriangleCap(quint64 triangles);
    /// The kept fraction of triangles of each level.
    void setRatios(const std::vector<float>& ratios);
    /// Limits the memory of the cached meshes, in megabytes.
    void setCacheSize(unsigned int megabytes);

    /// How fast the model turns, in degrees per second; 0 for a model at rest.
    int turnSpeed() const { return m_turnSpeed; }
    void setTurnSpeed(int degreesPerSecond);

    /// The number of triangles that the level and the cap leave.
    quint64 triangles() const;
    /// The model with so many triangles, from the cache if possible.
    std::shared_ptr<const KnotMesh> mesh();

Q_SIGNALS:
    void changed();

private:
    const KnotShape m_shape;
    int m_level;
    quint64 m_triangleCap;
    std::vector<float> m_ratios;
    int m_turnSpeed;
    QCache<int, std::shared_ptr<const KnotMesh>> m_meshes;
};

#endif
