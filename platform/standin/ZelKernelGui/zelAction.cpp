#include "platform/zelAction.h"

#include "platform/zelActionManager.h"

zelAction::zelAction(const QString& name, const QString& guiName, zelActionManager* manager)
    : QAction(guiName, manager)
    , m_name(name)
    , m_manager(manager)
{
    if (manager)
        manager->m_actions.insert(name, this);
}

zelAction::~zelAction()
{
    // A later action of the same name may have replaced this one.
    if (m_manager && m_manager->m_actions.value(m_name) == this)
        m_manager->m_actions.remove(m_name);
}

const QString& zelAction::getActionName() const
{
    return m_name;
}

QString zelAction::getActionGuiName() const
{
    return text();
}
