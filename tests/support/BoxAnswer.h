#ifndef ZEL_BOXANSWER_H
#define ZEL_BOXANSWER_H

#include <QtWidgets>

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

    QStringList texts;

private:
    void answer(QMessageBox::StandardButton wanted)
    {
        auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
        if (!box || !box->isVisible())
            return;
        texts << box->text();
        if (QAbstractButton* button = box->button(wanted))
            button->click();
        else
            box->reject();
    }
};

#endif
