#ifndef ZEL_ZELCCACTIONITEM_H
#define ZEL_ZELCCACTIONITEM_H

#include "base/ZelExport.h"

#include "platform/zelAction.h"

#include <QPointer>
#include <QWidget>

#include <memory>

namespace Ui {
class ZelCCActionItem;
}

namespace zel {

/// A button of the control center's menu column that mirrors one kernel action: its text, shortcut, tips,
/// visibility and whether it is enabled. Owned by the control center; the action is not owned.
class ZEL_EXPORT ZelCCActionItem : public QWidget
{
    Q_OBJECT

public:
    /// Mirrors the action from now on; it must not be null.
    ZelCCActionItem(zelAction* action, QWidget* parent, Qt::WindowFlags flags = Qt::WindowFlags());
    ~ZelCCActionItem() override;

    /// Null once the action has been deleted; the item is hidden then.
    zelAction* getZelAction() const;

    /// Whether the action belongs to the workflow at hand; for the application to read. False at first.
    void setIsWorkflowSpecific(bool specific);
    /// As it was set.
    bool isWorkflowSpecific() const;

public Q_SLOTS:
    /// Mirrors the action again.
    void onActionChanged();

private:
    const std::unique_ptr<Ui::ZelCCActionItem> m_ui;
    const QPointer<zelAction> m_action;
    bool m_workflowSpecific;
};

} // namespace zel

#endif
