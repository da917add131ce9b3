#ifndef ZEL_ZELCCACTIONITEM_H
#define ZEL_ZELCCACTIONITEM_H

#include "platform/ZelExport.h"

#include <QWidget>

#include <memory>

class zelAction;

namespace Ui {
class ZelCCActionItem;
}

namespace zel {

/// A button of the control center's menu column that mirrors one kernel action: its text, shortcut, tips,
/// visibility and whether it is enabled. Owned by the control center; the action is not owned and has to be
/// unregistered there before it is deleted.
class ZEL_EXPORT ZelCCActionItem : public QWidget
{
    Q_OBJECT

public:
    ZelCCActionItem(zelAction* action, QWidget* parent, Qt::WindowFlags flags);
    ~ZelCCActionItem() override;

    zelAction* getZelAction() const;

    /// Whether the action belongs to the workflow at hand; for the application to read. False at first.
    void setIsWorkflowSpecific(bool specific);
    bool isWorkflowSpecific() const;

protected Q_SLOTS:
    /// Mirrors the action again.
    void onActionChanged();

private:
    const std::unique_ptr<Ui::ZelCCActionItem> m_ui;
    zelAction* const m_action;
    bool m_workflowSpecific;
};

} // namespace zel

#endif
