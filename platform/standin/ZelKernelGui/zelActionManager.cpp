#include "platform/zelActionManager.h"

#include "platform/zelAction.h"

zelActionManager::zelActionManager(QObject* parent)
    : QObject(parent)
{
}

zelActionManager::~zelActionManager() = default;

zelAction* zelActionManager::getActionByName(const QString& name) const
{
    return m_actions.value(name);
}
