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

/// A button in the menu column of the control center. It shows one zelAction: its text, shortcut and tips,
/// whether it is visible and whether it is enabled. Owned by the control center; does not own the action.
class ZEL_EXPORT ZelCCActionItem : public QWidget
{
    Q_OBJECT

public:
    /// The action must not be null.
    ZelCCActionItem(zelAction* action, QWidget* parent, Qt::WindowFlags flags = Qt::WindowFlags());
    ~ZelCCActionItem() override;

    /// Null when the action has been deleted; the item is then hidden.
    zelAction* getZelAction() const;

    /// Marks the action as part of the current workflow, for the application to read. False at first.
    void setIsWorkflowSpecific(bool specific);
    /// What setIsWorkflowSpecific() has set.
    bool isWorkflowSpecific() const;

public Q_SLOTS:
    /// Updates the item from the action.
    void onActionChanged();

private:
    const std::unique_ptr<Ui::ZelCCActionItem> m_ui;
    const QPointer<zelAction> m_action;
    bool m_workflowSpecific;
};

} // namespace zel

#endif
