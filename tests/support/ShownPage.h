#ifndef ZEL_SHOWNPAGE_H
#define ZEL_SHOWNPAGE_H

#include "FakeApplication.h"
#include "ZelControlCenter.h"
#include "ZelSettingsRegistry.h"
#include "ZelSettingsValidators.h"

#include <functional>

/// Key and text, as a settings file or the registry holds them.
using SettingsTexts = std::map<QString, QString>;

/// Replaces all registered defaults.
inline void registerDefaults(const SettingsTexts& defaults)
{
    zel::ZelSettingsRegistry::ClearSettingsValues();
    for (const auto& [key, text] : defaults)
        zel::ZelSettingsRegistry::RegisterSetting(key, text, &zel::ZelSettingsValidators::noOp);
}

inline void store(QSettings& settings, const SettingsTexts& texts)
{
    for (const auto& [key, text] : texts)
        settings.setValue(key, text);
}

/// True as soon as the drawer is open and shows its pages, which are laid out when the slide has ended.
inline bool showsPages(zel::ZelControlCenter& controlCenter)
{
    const QWidget* pages = controlCenter.settingsWidget()->widget();
    return controlCenter.isSettingsOpen() && pages->height() >= pages->sizeHint().height();
}

/// Drags with the mouse. The places are those in the window: when it is pressed, and when it is released.
inline void drag(QWidget& window, const QPoint& press, const QPoint& way, const QPoint& release)
{
    QTest::mousePress(inputOf(&window), Qt::LeftButton, Qt::NoModifier, press);
    QTest::mouseMove(inputOf(&window), press + way);
    QTest::mouseRelease(inputOf(&window), Qt::LeftButton, Qt::NoModifier, release);
}

struct User
{
    template <class T = QWidget>
    T* find(const QString& name)
    {
        return window->findChild<T*>(name);
    }

    void click(const QString& name)
    {
        // Near the left end, where a radio button has its indicator.
        QTest::mouseClick(find(name), Qt::LeftButton, Qt::NoModifier, QPoint(8, find(name)->height() / 2));
    }

    /// Types a number over the one in a spin box and leaves the box by the tabulator. Returns its text then.
    QString type(const QString& name, const QString& number)
    {
        auto* box = find<QAbstractSpinBox>(name);
        box->setFocus();
        box->selectAll();
        QTest::keyClicks(box, number);
        QTest::keyClick(box, Qt::Key_Tab);
        return box->text();
    }

    QWidget* window = nullptr;
};

/// Answers the message boxes that open while it lives, by keys. Keeps their texts.
struct BoxAnswer : QTimer
{
    explicit BoxAnswer(const QList<Qt::Key>& answer)
        : keys(answer)
    {
        start(20);
    }

    void timerEvent(QTimerEvent*) override
    {
        auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
        if (!box || !box->isVisible())
            return;
        const bool isUsual = box->windowTitle() == "Settings Modification" && !box->styleSheet().isEmpty();
        texts << (isUsual ? box->text() : "unusual title or look");
        if (beforeAnswer)
            beforeAnswer();
        for (const Qt::Key key : keys)
            QTest::keyClick(inputOf(box), key);
    }

    const QList<Qt::Key> keys;
    QStringList texts;
    std::function<void()> beforeAnswer;
};

/// A page in an active window of the drawer's width, loaded from the settings, and the user in front of it.
template <class Page>
struct ShownPage : User
{
    ShownPage(kqDMIApplication* application, QSettings& settings)
        : page(application, settings, nullptr, Qt::WindowFlags())
        , changes(&page, SIGNAL(stateChanged()))
    {
        window = &page;
        // As in the drawer, which shows it elsewhere.
        page.getActionWidget()->setParent(&elsewhere);
        page.initializeWidget();
        page.resize(435, page.heightForWidth(435));
        page.show();
        QApplication::setActiveWindow(&page);
        QVERIFY(QTest::qWaitForWindowActive(&page));
    }

    /// Presses the reset button from the keyboard; how often the page says that it changed.
    int reset()
    {
        find("resetButton")->setFocus();
        changes.clear();
        QTest::keyClick(find("resetButton"), Qt::Key_Space);
        return changes.count();
    }

    bool canClickReset() { return find("resetButton")->isEnabled(); }

    QWidget elsewhere;
    Page page;
    QSignalSpy changes;
};

/// Opens a page on stored texts and applies it without an edit. Answers what is stored under a key if that
/// wrote anything, else a null text.
template <class Page>
QString writtenUntouched(FakeApplication& application, const SettingsTexts& stored, const QString& key)
{
    store(application.getSettings(), stored);
    const QByteArray before = application.storedFile();
    ShownPage<Page> shown(&application, application.getSettings());
    const bool modified = shown.page.hasModifications();
    shown.page.applyModifications();
    if (shown.page.hasModifications() || !shown.changes.isEmpty())
        return "still modified, or announced as an edit";
    if (modified != (application.storedFile() != before))
        return "modified and written disagree";
    return modified ? application.getSettings().value(key).toString() : QString();
}

#endif
