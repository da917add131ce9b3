#include "ViewerScene.h"

#include <algorithm>

ViewerScene::ViewerScene(QObject* parent)
    : QObject(parent)
    , m_level(3)
    , m_triangleCap(ModelTriangles)
    , m_ratios(LevelCount, 1.0F)
    , m_turnSpeed(0)
{
}

void ViewerScene::setLevel(int level)
{
    m_level = level;
    Q_EMIT changed();
}

void ViewerScene::setTriangleCap(quint64 triangles)
{
    m_triangleCap = triangles;
    Q_EMIT changed();
}

void ViewerScene::setRatios(const std::vector<float>& ratios)
{
    m_ratios = ratios;
    m_ratios.resize(LevelCount, 1.0F);
    Q_EMIT changed();
}

void ViewerScene::setCacheSize(unsigned int megabytes)
{
    m_meshes.setMaxCost(static_cast<int>(megabytes) * 1024);
}

void ViewerScene::setTurnSpeed(int degreesPerSecond)
{
    m_turnSpeed = degreesPerSecond;
    Q_EMIT changed();
}

quint64 ViewerScene::triangles() const
{
    const double kept = ModelTriangles * static_cast<double>(m_ratios[m_level - 1]);
    return std::min(m_triangleCap, static_cast<quint64>(kept));
}

std::shared_ptr<const KnotMesh> ViewerScene::mesh()
{
    const int facets = static_cast<int>(triangles() / TrianglesPerFacet);
    if (const auto* known = m_meshes.object(facets))
        return *known;
    auto mesh = std::make_shared<const KnotMesh>(m_shape, facets);
    const std::size_t bytes =
        mesh->points().size() * sizeof(QVector3D) + mesh->facets().size() * sizeof(KnotMesh::Facet);
    m_meshes.insert(facets, new std::shared_ptr<const KnotMesh>(mesh), static_cast<int>(bytes / 1024) + 1);
    return mesh;
}
