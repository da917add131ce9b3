#include "ZelCCActionItem.h"

#include "ui_ZelCCActionItem.h"

#include "LanguageFollower.h"

#include "platform/kqDMIApplication.h"

#include <QKeySequence>

namespace zel {

namespace {

/// Qt lays a widget out when it is shown for the first time, even if its parent is hidden.
void showOrHide(QWidget& widget, bool visible)
{
    if (widget.isHidden() == visible)
        widget.setVisible(visible);
}

} // namespace

ZelCCActionItem::ZelCCActionItem(zelAction* action, QWidget* parent, Qt::WindowFlags flags)
    : QWidget(parent, flags)
    , m_ui(new Ui::ZelCCActionItem)
    , m_action(action)
    , m_workflowSpecific(false)
{
    m_ui->setupUi(this);
    setStyleSheet(kqDMIApplication::GetStylesheet("ZelCCActionItem"));
    onActionChanged();
    new LanguageFollower(this, [this] { onActionChanged(); }); // The names of keys are translated.
    connect(action, SIGNAL(changed()), this, SLOT(onActionChanged()));
    connect(action, SIGNAL(destroyed()), this, SLOT(hide()));
    connect(m_ui->actionButton, SIGNAL(clicked()), action, SLOT(trigger()));
}

ZelCCActionItem::~ZelCCActionItem() = default;

zelAction* ZelCCActionItem::getZelAction() const
{
    return m_action;
}

void ZelCCActionItem::setIsWorkflowSpecific(bool specific)
{
    m_workflowSpecific = specific;
}

bool ZelCCActionItem::isWorkflowSpecific() const
{
    return m_workflowSpecific;
}

void ZelCCActionItem::onActionChanged()
{
    if (!m_action)
        return;
    showOrHide(*this, m_action->isVisible());
    m_ui->actionButton->setText(m_action->getActionGuiName());
    const QKeySequence shortcut = m_action->shortcut();
    if (!shortcut.isEmpty())
        m_ui->shortcut->setText(shortcut.toString(QKeySequence::NativeText));
    showOrHide(*m_ui->shortcut, !shortcut.isEmpty());
    setStatusTip(m_action->statusTip());
    setToolTip(m_action->toolTip());
    m_ui->actionButton->setEnabled(m_action->isEnabled());
}

} // namespace zel
