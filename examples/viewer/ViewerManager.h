#ifndef VIEWER_VIEWERMANAGER_H
#define VIEWER_VIEWERMANAGER_H

#include "ViewerScene.h"

#include <zel/platform/kqDMManager.h>

/// Passes the values of the pages "Folders" and "Simplification" to the scene.
class ViewerManager : public kqDMManager
{
public:
    explicit ViewerManager(ViewerScene& scene)
        : m_scene(scene)
    {
    }

    void setMaxCacheSize(unsigned int megabytes) override { m_scene.setCacheSize(megabytes); }
    void setSimplificationRatios(std::vector<float>& ratios) override { m_scene.setRatios(ratios); }

private:
    ViewerScene& m_scene;
};

#endif
