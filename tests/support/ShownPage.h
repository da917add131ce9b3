#ifndef ZEL_SHOWNPAGE_H
#define ZEL_SHOWNPAGE_H

#include "ZelSettingsRegistry.h"

#include <QAbstractSpinBox>
#include <QApplication>
#include <QSettings>
#include <QSignalSpy>
#include <QtTest>

/// Key and text, as a settings file or the registry holds them.
typedef QMap<QString, QString> SettingsTexts;

/// Replaces all registered defaults.
inline void registerDefaults(const SettingsTexts& defaults)
{
    zel::ZelSettingsRegistry::ClearSettingsValues();
    for (const QString& key : defaults.keys())
        zel::ZelSettingsRegistry::RegisterSetting(key, defaults[key], nullptr);
}

inline void store(QSettings& settings, const SettingsTexts& texts)
{
    for (const QString& key : texts.keys())
        settings.setValue(key, texts[key]);
    settings.sync();
}

/// A page in an active window of the drawer's width, loaded from the settings, and the user in front of it.
template <class Page>
class ShownPage
{
public:
    ShownPage(kqDMIApplication* application, QSettings& settings)
        : page(application, settings, nullptr, Qt::WindowFlags())
        , changes(&page, SIGNAL(stateChanged()))
    {
        // As in the drawer, which shows it elsewhere.
        page.getActionWidget()->setParent(&m_elsewhere);
        page.initializeWidget();
        page.resize(435, page.heightForWidth(435));
        page.show();
        QApplication::setActiveWindow(&page);
        if (!QTest::qWaitForWindowActive(&page))
            qFatal("the page's window does not become active");
    }

    template <class T = QWidget>
    T* find(const QString& name)
    {
        T* widget = page.template findChild<T*>(name);
        if (!widget)
            qFatal("the page has no %s", qPrintable(name));
        return widget;
    }

    void click(const QString& name)
    {
        auto* widget = find(name);
        // Near the left end, where a radio button has its indicator.
        QTest::mouseClick(widget, Qt::LeftButton, Qt::NoModifier, QPoint(8, widget->height() / 2));
    }

    /// Types a number over the one in a spin box and leaves the box by the tabulator.
    void type(const QString& name, const QString& number)
    {
        auto* box = find<QAbstractSpinBox>(name);
        box->setFocus();
        box->selectAll();
        QTest::keyClicks(box, number);
        QTest::keyClick(box, Qt::Key_Tab);
    }

    bool canClickReset() { return find("resetButton")->isEnabled(); }

private:
    QWidget m_elsewhere;

public:
    Page page;
    QSignalSpy changes;
};

#endif
