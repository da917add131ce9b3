#ifndef ZEL_ZELACTION_H
#define ZEL_ZELACTION_H

#include "../base/ZelExport.h"

#include <QAction>
#include <QPointer>
#include <QString>

class zelActionManager;

/// An action of the viewer: a QAction with a name for use in code.
class ZEL_KERNEL_GUI_EXPORT zelAction : public QAction
{
    Q_OBJECT

public:
    /// @param name     identifies the action in code
    /// @param guiName  the text that the user reads
    /// @param manager  registers and owns the action; with null, the caller owns it
    zelAction(const QString& name, const QString& guiName, zelActionManager* manager);
    ~zelAction() override;

    /// The name that identifies the action in code.
    const QString& getActionName() const;

    /// The text that the user reads, which is QAction::text().
    QString getActionGuiName() const;

private:
    const QString m_name;
    QPointer<zelActionManager> m_manager;
};

#endif
