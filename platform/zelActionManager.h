#ifndef ZEL_ZELACTIONMANAGER_H
#define ZEL_ZELACTIONMANAGER_H

#include "../base/ZelExport.h"

#include <QMap>
#include <QObject>
#include <QString>

class zelAction;

/// The named actions of the application. Owns the actions that were created with it.
class ZEL_KERNEL_GUI_EXPORT zelActionManager : public QObject
{
    Q_OBJECT

public:
    /// Creates a manager without actions.
    explicit zelActionManager(QObject* parent = nullptr);
    ~zelActionManager() override;

    /// The action of that name; null when there is none.
    zelAction* getActionByName(const QString& name) const;

private:
    friend class zelAction;

    QMap<QString, zelAction*> m_actions;
};

#endif
