#ifndef ZEL_FAKEPAGE_H
#define ZEL_FAKEPAGE_H

#include "ZelSettingsPanel.h"

#include <QStringList>

/// A page whose answers a test sets, and which notes what is asked of it in a list that pages can share.
class FakePage : public zel::ZelSettingsPanel
{
    Q_OBJECT

public:
    FakePage(const QString& name, QSettings& settings, QStringList& calls)
        : ZelSettingsPanel(nullptr, settings, nullptr, Qt::WindowFlags())
        , m_calls(calls)
    {
        setPanelName(name);
        setMinimumHeight(400);
    }

    bool modified = false;
    bool resettable = false;
    bool needsRestart = false;

    /// What the user does: changes the page.
    void edit()
    {
        modified = resettable = true;
        Q_EMIT stateChanged();
    }

    void initializeWidget() override
    {
        note("initialize");
        modified = false;
    }
    bool hasModifications() const override { return modified; }
    bool applyModifications() override
    {
        note("apply");
        modified = false;
        return needsRestart;
    }
    bool canResetContent() const override { return resettable; }
    void resetContent() override { note("reset"); }
    bool cancelModifications() override { return false; }

Q_SIGNALS:
    void stateChanged();

private:
    void note(const QString& call) { m_calls << getPanelName() + " " + call; }

    QStringList& m_calls;
};

#endif
