#ifndef VIEWER_MODELVIEW_H
#define VIEWER_MODELVIEW_H

#include <QColor>
#include <QMatrix4x4>
#include <QPoint>
#include <QPolygonF>
#include <QTimer>
#include <QWidget>

#include <vector>

class QPainter;
class ViewerScene;

/// The 3D view of the scene's model. The mouse turns the model, and so does the engine while it is on.
class ModelView : public QWidget
{
    Q_OBJECT

public:
    /// @param highlights  whether surfaces shine, as only the "deferred" engine does
    ModelView(ViewerScene& scene, bool highlights, QWidget* parent);

public Q_SLOTS:
    /// Starts or stops the engine.
    void setEngineEnabled(bool enabled);
    void setWireFrame(bool wireFrame);

Q_SIGNALS:
    void framePainted();

protected:
    void paintEvent(QPaintEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;

private Q_SLOTS:
    void advance();
    void onSceneChanged();

private:
    struct PaintedFacet
    {
        QPolygonF outline;
        QColor color;
        float depth;
    };

    void turn(float degrees, const QVector3D& axis);
    /// The facets with their front to the viewer, the farthest first.
    std::vector<PaintedFacet> visibleFacets();
    QColor shade(const QVector3D& normal, float along) const;
    void paintCaption(QPainter& painter);

    ViewerScene& m_scene;
    const bool m_highlights;
    QMatrix4x4 m_rotation;
    QTimer m_clock;
    QPoint m_mousePosition;
    std::size_t m_facetCount;
    bool m_engineEnabled;
    bool m_wireFrame;
};

#endif
