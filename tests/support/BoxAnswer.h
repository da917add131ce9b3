#ifndef ZEL_BOXANSWER_H
#define ZEL_BOXANSWER_H

#include <QAbstractButton>
#include <QApplication>
#include <QMessageBox>
#include <QTimer>

/// Answers the message boxes that open while it lives, as a user would: by a click on one of their buttons,
/// or by Escape where that is to be. Keeps what they said.
class BoxAnswer : public QTimer
{
public:
    explicit BoxAnswer(QMessageBox::StandardButton button)
    {
        callOnTimeout([this, button] { answer(button); });
        start(20);
    }

    QStringList titles, texts;

private:
    void answer(QMessageBox::StandardButton wanted)
    {
        auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
        if (!box || !box->isVisible())
            return;
        titles << box->windowTitle();
        texts << box->text();
        if (QAbstractButton* button = box->button(wanted))
            button->click();
        else
            box->reject();
    }
};

#endif
