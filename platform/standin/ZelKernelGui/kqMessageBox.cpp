#include "platform/kqMessageBox.h"

#include "platform/kqDMIApplication.h"

#include <QAbstractButton>
#include <QPointer>

namespace {

QMessageBox::Icon icon(const QMessageBox& box, bool critical)
{
    if (critical)
        return QMessageBox::Critical;
    return box.buttons().size() > 1 ? QMessageBox::Question : QMessageBox::Information;
}

} // namespace

QMessageBox::StandardButton
kqMessageBox::ShowMessage(const QString& title, const QString& text, QMessageBox::StandardButtons buttons,
                          QWidget* parent, Qt::WindowFlags flags,
                          const QMap<QMessageBox::StandardButton, QString>& buttonTexts, bool critical)
{
    // Guarded, because a parent that goes away meanwhile takes the box along.
    const QPointer<QMessageBox> box(new QMessageBox(QMessageBox::NoIcon, title, text, buttons, parent,
                                                    flags | Qt::Dialog | Qt::MSWindowsFixedSizeDialogHint));
    box->setIcon(icon(*box, critical));
    box->setTextFormat(Qt::PlainText);
    // What is asked may lose something, which a key pressed in passing must not do.
    if (buttons & QMessageBox::Cancel)
        box->setDefaultButton(QMessageBox::Cancel);
    box->setStyleSheet(kqDMIApplication::GetStylesheet("kqMessageBox"));
    for (auto entry = buttonTexts.begin(); entry != buttonTexts.end(); ++entry) {
        if (QAbstractButton* button = box->button(entry.key()))
            button->setText(entry.value());
    }
    const int answer = box->exec();
    delete box;
    return answer == QMessageBox::NoButton ? QMessageBox::Cancel
                                           : static_cast<QMessageBox::StandardButton>(answer);
}
