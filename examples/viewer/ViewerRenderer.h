#ifndef VIEWER_VIEWERRENDERER_H
#define VIEWER_VIEWERRENDERER_H

#include "ViewerScene.h"

#include <zel/platform/kqDMRenderer.h>

/// Passes the triangle cap of the page "Display" to the scene.
class ViewerRenderer : public kqDMRenderer
{
public:
    explicit ViewerRenderer(ViewerScene& scene)
        : m_scene(scene)
    {
    }

    void setTargetTriangles(quint64 triangles) override { m_scene.setTriangleCap(triangles); }

private:
    ViewerScene& m_scene;
};

#endif
