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
    /// Shows a modal box and returns the button that closed it. Escape and the window manager close it with
    /// Cancel, or with the only button. Cancel is the default button, if there is one.
    /// @param buttonTexts  replace the standard texts of these buttons
    /// @param critical     shows the icon of an error
    static QMessageBox::StandardButton
    ShowMessage(const QString& title, const QString& text, QMessageBox::StandardButtons buttons,
                QWidget* parent, Qt::WindowFlags flags,
                const QMap<QMessageBox::StandardButton, QString>& buttonTexts, bool critical);
};

#endif
