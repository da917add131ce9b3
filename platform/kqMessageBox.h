#ifndef ZEL_KQMESSAGEBOX_H
#define ZEL_KQMESSAGEBOX_H

#include "../base/ZelExport.h"

#include <QMap>
#include <QMessageBox>
#include <QString>

/// The viewer's message box.
class ZEL_KERNEL_GUI_EXPORT kqMessageBox
{
public:
    /// Shows a modal box and returns the button that closed it; closing the box by Escape or by the window
    /// manager answers as Cancel does, or as the only button. Where Cancel is among the buttons it has the
    /// focus and is what Return answers.
    /// @param buttonTexts  texts that replace the usual ones of the named buttons
    /// @param critical     shows the box as an error instead of a question
    static QMessageBox::StandardButton
    ShowMessage(const QString& title, const QString& text, QMessageBox::StandardButtons buttons,
                QWidget* parent, Qt::WindowFlags flags,
                const QMap<QMessageBox::StandardButton, QString>& buttonTexts, bool critical);
};

#endif
