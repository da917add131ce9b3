#ifndef ZEL_BOXANSWER_H
#define ZEL_BOXANSWER_H

#include <QtTest>
#include <QtWidgets>

/// Answers the message boxes that open while it lives, by a click or a key. Keeps their texts.
class BoxAnswer : public QTimer
{
public:
    explicit BoxAnswer(QMessageBox::StandardButton button, Qt::Key key = Qt::Key_unknown)
    {
        callOnTimeout([this, button, key] { answer(button, key); });
        start(20);
    }

    QStringList texts;

private:
    void answer(QMessageBox::StandardButton wanted, Qt::Key key)
    {
        auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
        if (!box || !box->isVisible())
            return;
        texts << box->text();
        if (key != Qt::Key_unknown)
            QTest::keyClick(box->windowHandle(), key);
        else
            box->button(wanted)->click();
    }
};

#endif
