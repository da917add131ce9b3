#ifndef ZEL_RETURNKEY_H
#define ZEL_RETURNKEY_H

#include <QAbstractButton>
#include <QApplication>
#include <QKeyEvent>

namespace zel {

/// Makes Return and Enter click the focused button, as Space does, in a widget and its descendants, except
/// in other windows. The widget owns this object.
class ReturnKey : public QObject
{
public:
    explicit ReturnKey(QWidget* tree)
        : QObject(tree)
        , m_tree(tree)
    {
        // An event filter of the widget would see the key too, but not which button it was meant for.
        qApp->installEventFilter(this);
    }

    bool eventFilter(QObject* watched, QEvent* event) override
    {
        if (event->type() != QEvent::KeyPress)
            return false;
        const auto* key = static_cast<QKeyEvent*>(event);
        const bool isReturn = key->key() == Qt::Key_Return || key->key() == Qt::Key_Enter;
        auto* button = qobject_cast<QAbstractButton*>(watched);
        // A key that is held down must not toggle a check box again and again.
        if (!isReturn || !button || key->isAutoRepeat() || (key->modifiers() & ~Qt::KeypadModifier) ||
            !m_tree->isAncestorOf(button))
            return false;
        button->click();
        return true;
    }

private:
    QWidget* const m_tree;
};

} // namespace zel

#endif
