#include "WriteNotice.h"

#include "Accessibility.h"

#include <QLabel>
#include <QScrollArea>
#include <QTextDocument>
#include <QTimer>

namespace zel {

WriteNotice::WriteNotice(QLabel* label)
    : QObject(label)
    , m_label(label)
{
    show(QString());
}

void WriteNotice::show(const QString& reason)
{
    m_label->setText(reason);
    // The column may be too narrow for a long path, which may hold what looks like markup.
    m_label->setToolTip(reason.isEmpty() ? QString() : Qt::convertFromPlainText(reason));
    m_label->setAccessibleDescription(reason);
    if (reason.isEmpty()) {
        m_label->hide();
        return;
    }
    showNotice(*m_label);
    QTimer::singleShot(0, this, SLOT(bringIntoView())); // When it is laid out.
}

void WriteNotice::bringIntoView()
{
    for (QWidget* around = m_label; around; around = around->parentWidget())
        if (auto* area = qobject_cast<QScrollArea*>(around))
            area->ensureWidgetVisible(m_label, 0, 0);
}

} // namespace zel
