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
    bool hasModifications() const override { return answer(modified); }
    bool applyModifications() override
    {
        modified = false;
        return note("apply", needsRestart);
    }
    bool canResetContent() const override { return answer(resettable); }
    void resetContent() override { note("reset"); }
    bool cancelModifications() override { return false; }
    void showEvent(QShowEvent*) override { whenAsked(); }

Q_SIGNALS:
    void stateChanged();

private:
    bool answer(bool result) const
    {
        whenAsked();
        return result;
    }
    bool note(const char* call, bool result = false) const
    {
        m_calls << getPanelName() + ' ' + call;
        return answer(result);
    }

    QStringList& m_calls;
};

#endif
