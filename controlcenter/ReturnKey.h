#ifndef ZEL_RETURNKEY_H
#define ZEL_RETURNKEY_H

#include <QAbstractButton>
#include <QApplication>
#include <QKeyEvent>

namespace zel {

/// Makes Return and Enter press the button that has the focus, as Space does, in a widget and all that it
/// contains, but for other windows. Belongs to the widget.
class ReturnKey : public QObject
{
public:
    explicit ReturnKey(QWidget* tree)
        : QObject(tree)
        , m_tree(tree)
    {
        // A button passes the key on to its parents, which cannot tell from where it comes.
        qApp->installEventFilter(this);
    }

    bool eventFilter(QObject* watched, QEvent* event) override
    {
        if (event->type() != QEvent::KeyPress)
            return false;
        const auto* key = static_cast<QKeyEvent*>(event);
        const bool isReturn = key->key() == Qt::Key_Return || key->key() == Qt::Key_Enter;
        auto* button = qobject_cast<QAbstractButton*>(watched);
        // A key that is held down must not switch a check box to and fro.
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
