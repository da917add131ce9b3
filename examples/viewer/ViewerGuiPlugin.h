#ifndef VIEWER_VIEWERGUIPLUGIN_H
#define VIEWER_VIEWERGUIPLUGIN_H

#include <QPointer>
#include <QWidget>

#include <zel/platform/kqDMGuiPlugin.h>

/// Gives the control center the 3D view, in which a click closes the menu. With a plug-in the control center
/// also asks the user before it discards edits.
class ViewerGuiPlugin : public kqDMGuiPlugin
{
public:
    QWidget* getMainViewWidget() const override { return m_view; }
    /// Not owned; may be deleted at any time.
    void setMainViewWidget(QWidget* view) { m_view = view; }

private:
    QPointer<QWidget> m_view;
};

#endif
