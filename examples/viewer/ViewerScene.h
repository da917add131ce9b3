#ifndef VIEWER_VIEWERSCENE_H
#define VIEWER_VIEWERSCENE_H

#include "KnotMesh.h"
#include "KnotShape.h"

#include <QCache>
#include <QObject>

#include <memory>
#include <vector>

/// The model and how much of it is shown: a simplification level keeps a part of the model's
/// triangles, and the triangle cap limits what is left.
class ViewerScene : public QObject
{
    Q_OBJECT

public:
    enum { LevelCount = 5, ModelTriangles = 600000 };

    /// Facets are painted one by one, so the view paints one where a graphics card would draw a hundred.
    enum { TrianglesPerFacet = 100 };

    explicit ViewerScene(QObject* parent = nullptr);

    /// The level that is shown, from 1 (everything) to LevelCount.
    int level() const { return m_level; }
    void setLevel(int level);

    void setTriangleCap(quint64 triangles);
    /// The kept fraction of triangles of each level.
    void setRatios(const std::vector<float>& ratios);
    /// How much memory finished meshes may occupy, in megabytes.
    void setCacheSize(unsigned int megabytes);

    /// Degrees per second by which the model turns by itself; 0 for a model at rest.
    int turnSpeed() const { return m_turnSpeed; }
    void setTurnSpeed(int degreesPerSecond);

    /// What the level and the cap leave of the model's triangles.
    quint64 triangles() const;
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
