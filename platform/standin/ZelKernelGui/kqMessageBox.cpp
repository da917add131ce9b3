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
    // QPointer, because a parent that is deleted meanwhile deletes the box.
    const QPointer<QMessageBox> box(new QMessageBox(QMessageBox::NoIcon, title, text, buttons, parent,
                                                    flags | Qt::Dialog | Qt::MSWindowsFixedSizeDialogHint));
    box->setIcon(icon(*box, critical));
    box->setTextFormat(Qt::PlainText);
    // The other answers may lose data, which a stray Return key must not do.
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
