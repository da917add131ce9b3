#include "ModelView.h"

#include "ViewerScene.h"

#include <QLocale>
#include <QMouseEvent>
#include <QPainter>
#include <QVector3D>

#include <algorithm>
#include <cmath>
#include <zel/platform/MTLogger.h>

namespace {

const int FrameTime = 33; // milliseconds
const float ModelRadius = 3.6F;
const float DegreesPerPixel = 0.5F;
const QVector3D Light = QVector3D(-0.4F, 0.6F, 0.7F).normalized();

} // namespace

ModelView::ModelView(ViewerScene& scene, bool highlights, QWidget* parent)
    : QWidget(parent)
    , m_scene(scene)
    , m_highlights(highlights)
    , m_facetCount(0)
    , m_engineEnabled(true)
    , m_wireFrame(false)
{
    setMinimumSize(200, 200);
    m_rotation.rotate(-30, 1, 0, 0);
    m_clock.setInterval(FrameTime);
    connect(&m_clock, SIGNAL(timeout()), this, SLOT(advance()));
    connect(&scene, SIGNAL(changed()), this, SLOT(onSceneChanged()));
    onSceneChanged();
}

void ModelView::setEngineEnabled(bool enabled)
{
    m_engineEnabled = enabled;
    onSceneChanged();
}

void ModelView::setWireFrame(bool wireFrame)
{
    m_wireFrame = wireFrame;
    update();
}

void ModelView::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    QLinearGradient background(0, 0, 0, height());
    background.setColorAt(0, QColor(236, 239, 244));
    background.setColorAt(1, QColor(168, 178, 194));
    painter.fillRect(rect(), background);

    painter.setRenderHint(QPainter::Antialiasing, m_wireFrame);
    for (const PaintedFacet& facet : visibleFacets()) {
        painter.setPen(facet.color);
        painter.setBrush(m_wireFrame ? QBrush() : QBrush(facet.color));
        painter.drawConvexPolygon(facet.outline);
    }
    paintCaption(painter);
    Q_EMIT framePainted();
}

void ModelView::mousePressEvent(QMouseEvent* event)
{
    m_mousePosition = event->pos();
}

void ModelView::mouseMoveEvent(QMouseEvent* event)
{
    const QPoint distance = event->pos() - m_mousePosition;
    m_mousePosition = event->pos();
    turn(distance.x() * DegreesPerPixel, QVector3D(0, 1, 0));
    turn(distance.y() * DegreesPerPixel, QVector3D(1, 0, 0));
}

void ModelView::advance()
{
    turn(m_scene.turnSpeed() * FrameTime / 1000.0F, QVector3D(0, 1, 0));
}

void ModelView::onSceneChanged()
{
    if (m_engineEnabled && m_scene.turnSpeed() > 0)
        m_clock.start();
    else
        m_clock.stop();
    update();
}

void ModelView::turn(float degrees, const QVector3D& axis)
{
    QMatrix4x4 step;
    step.rotate(degrees, axis);
    m_rotation = step * m_rotation;
    update();
}

std::vector<ModelView::PaintedFacet> ModelView::visibleFacets()
{
    const auto mesh = m_scene.mesh();
    if (m_facetCount != mesh->facets().size()) {
        m_facetCount = mesh->facets().size();
        MTLogger::Log("debug", "painting " + std::to_string(m_facetCount) + " facets");
    }

    std::vector<QVector3D> points;
    for (const QVector3D& point : mesh->points())
        points.push_back(m_rotation * point);
    const float scale = std::min(width(), height()) / (2 * ModelRadius);
    const QPointF centre(width() / 2.0, height() / 2.0);

    std::vector<PaintedFacet> facets;
    for (std::size_t i = 0; i < mesh->facets().size(); ++i) {
        const auto& corners = mesh->facets()[i].corners;
        const QVector3D& a = points[corners[0]];
        const QVector3D& b = points[corners[1]];
        const QVector3D& c = points[corners[2]];
        const QVector3D normal = QVector3D::normal(a, b, c);
        if (normal.z() <= 0)
            continue;
        QPolygonF outline;
        for (const QVector3D& point : {a, b, c})
            outline << centre + QPointF(point.x(), -point.y()) * scale;
        facets.push_back({outline, shade(normal, mesh->along(i)), float(a.z() + b.z() + c.z())});
    }
    std::sort(facets.begin(), facets.end(),
              [](const PaintedFacet& left, const PaintedFacet& right) { return left.depth < right.depth; });
    return facets;
}

QColor ModelView::shade(const QVector3D& normal, float along) const
{
    const double diffuse = 0.3 + 0.7 * std::max<double>(0, QVector3D::dotProduct(normal, Light));
    const QVector3D half = (Light + QVector3D(0, 0, 1)).normalized();
    const double specular = std::max<double>(0, QVector3D::dotProduct(normal, half));
    const double shine = m_highlights ? 0.6 * std::pow(specular, 30) : 0;
    const double hue = 0.58 + 0.08 * std::sin(2 * 3.14159265 * along);
    const QColor base = QColor::fromHsvF(hue, 0.65, 0.9);
    const auto lit = [=](double part) { return std::min(1.0, part * diffuse + shine); };
    return QColor::fromRgbF(lit(base.redF()), lit(base.greenF()), lit(base.blueF()));
}

void ModelView::paintCaption(QPainter& painter)
{
    const QLocale language = locale();
    const QString caption =
        tr("Level %1 of %2\n%3 of %4 triangles")
            .arg(m_scene.level())
            .arg(ViewerScene::LevelCount)
            .arg(language.toString(m_scene.triangles()), language.toString(ViewerScene::ModelTriangles));
    painter.setPen(QColor(40, 48, 60));
    painter.drawText(rect().adjusted(14, 10, -14, -10), Qt::AlignLeft | Qt::AlignTop, caption);
}
