#include "WindowShortcuts.h"

#include "LanguageFollower.h"

#include <QAction>
#include <QKeySequence>
#include <QPushButton>

#include <utility>

namespace zel {

namespace {

/// Alt with the first free letter of a button's text, or of a name for texts without Latin letters.
QKeySequence altKey(const QPushButton& button, const char* name, QString& taken)
{
    for (const QChar& character : (button.text() + name).toUpper()) {
        if (character < 'A' || character > 'Z' || taken.contains(character))
            continue;
        taken += character;
        return QKeySequence(QString("Alt+%1").arg(character));
    }
    return QKeySequence();
}

void setAltKeys(const QWidget& controlCenter)
{
    QString taken;
    for (const char* name : {"apply", "reset"}) {
        auto* button = controlCenter.findChild<QPushButton*>(QString(name) + "Button");
        button->setShortcut(altKey(*button, name, taken));
    }
}

} // namespace

void addWindowShortcuts(QWidget& window, const QWidget& controlCenter)
{
    for (QAction* action : controlCenter.actions())
        window.addAction(action);
    const std::pair<const char*, const char*> keys[] = {
        {"apply", "Ctrl+S"}, {"help", "F1"}, {"discard", "Ctrl+Z"}, {"restore", "Ctrl+Shift+Z"}};
    for (const auto& [action, key] : keys)
        controlCenter.findChild<QAction*>(action)->setShortcut(QKeySequence(key));

    setAltKeys(controlCenter);
    // A new text takes the key from a button. The control center has set the texts before this one is told.
    new LanguageFollower(controlCenter.findChild<QPushButton*>("applyButton"),
                         [&controlCenter] { setAltKeys(controlCenter); });

    auto* close = new QAction(&window);
    close->setObjectName("close");
    close->setShortcuts(QList<QKeySequence>() << QKeySequence("Ctrl+Q") << QKeySequence("Ctrl+W"));
    QObject::connect(close, SIGNAL(triggered()), &window, SLOT(closeWidget()));
    window.addAction(close);
}

} // namespace zel
