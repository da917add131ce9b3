#ifndef VIEWER_VIEWERGUIPLUGIN_H
#define VIEWER_VIEWERGUIPLUGIN_H

#include <QPointer>
#include <QWidget>

#include <zel/platform/kqDMGuiPlugin.h>

/// Tells the control center where the 3D view is: a click there closes the menu. That there is such a plug-in
/// also tells it that it runs in a viewer and may ask the user.
class ViewerGuiPlugin : public kqDMGuiPlugin
{
public:
    QWidget* getMainViewWidget() const override { return m_view; }
    /// Not owned; may go away at any time.
    void setMainViewWidget(QWidget* view) { m_view = view; }

private:
    QPointer<QWidget> m_view;
};

#endif
