#ifndef ZEL_ZELACTION_H
#define ZEL_ZELACTION_H

#include "../base/ZelExport.h"

#include <QAction>
#include <QPointer>
#include <QString>

class zelActionManager;

/// An action of the viewer: what it is known by, and what the user reads.
class ZEL_KERNEL_GUI_EXPORT zelAction : public QAction
{
    Q_OBJECT

public:
    /// @param name     what code knows the action by
    /// @param guiName  what the user reads
    /// @param manager  registers and owns the action; null leaves both to the caller
    zelAction(const QString& name, const QString& guiName, zelActionManager* manager);
    ~zelAction() override;

    /// What code knows the action by.
    const QString& getActionName() const;

    /// The text that the user reads; follows the action's text.
    QString getActionGuiName() const;

private:
    const QString m_name;
    QPointer<zelActionManager> m_manager;
};

#endif
