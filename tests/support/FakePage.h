#ifndef ZEL_FAKEPAGE_H
#define ZEL_FAKEPAGE_H

#include "ZelSettingsPanel.h"

#include <functional>

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

    bool modified = false, resettable = false, needsRestart = false;
    std::function<void()> whenAsked = [] {}; ///< May delete the page.

    void edit()
    {
        modified = resettable = true;
        Q_EMIT stateChanged();
    }

    void initializeWidget() override
    {
        modified = false;
        note("initialize");
    }
    bool hasModifications() const override
    {
        const bool answer = modified;
        whenAsked();
        return answer;
    }
    bool applyModifications() override
    {
        modified = false;
        const bool answer = needsRestart;
        note("apply");
        return answer;
    }
    bool canResetContent() const override
    {
        const bool answer = resettable;
        whenAsked();
        return answer;
    }
    void resetContent() override { note("reset"); }
    bool cancelModifications() override { return false; }

Q_SIGNALS:
    void stateChanged();

private:
    void note(const char* call)
    {
        m_calls << getPanelName() + ' ' + call;
        whenAsked();
    }

    QStringList& m_calls;
};

#endif
