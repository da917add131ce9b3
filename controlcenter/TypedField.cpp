#include "TypedField.h"

#include "ZelPageHelp.h"

#include <QAbstractSpinBox>
#include <QApplication>
#include <QLineEdit>

namespace zel {

namespace {

const char* const ValueProperty = "value";

} // namespace

TypedField::TypedField(QWidget* area, QObject* parent)
    : QObject(parent)
    , m_area(area)
{
    connect(qApp, SIGNAL(focusChanged(QWidget*, QWidget*)), this, SLOT(onFocusChanged(QWidget*, QWidget*)));
}

QAbstractSpinBox* TypedField::field() const
{
    return qobject_cast<QAbstractSpinBox*>(m_field.data());
}

bool TypedField::isTyped() const
{
    return field() && field()->text() != m_text;
}

bool TypedField::hasHistory() const
{
    const auto* editor = isTyped() ? m_field->findChild<QLineEdit*>() : nullptr;
    return editor && (editor->isUndoAvailable() || editor->isRedoAvailable());
}

void TypedField::take(bool endsEdit)
{
    if (!field())
        return;
    field()->interpretText();
    // Some pages wait for the end of an edit, such as the levels, which stay in order.
    if (endsEdit && isTyped())
        QMetaObject::invokeMethod(m_field, "editingFinished");
}

void TypedField::remember()
{
    if (!field())
        return;
    const ZelSettingHelp* help = ZelPageHelp::HelpOn(m_field);
    m_value = help && !help->differs(StoredValue) ? QVariant() : m_field->property(ValueProperty);
    m_text = field()->text();
}

void TypedField::putBack()
{
    if (!field())
        return;
    const ZelSettingHelp* help = ZelPageHelp::HelpOn(m_field);
    if (help && !m_value.isValid())
        help->take(StoredValue);
    else
        m_field->setProperty(ValueProperty, m_value);
    if (field()) // The page may be deleted meanwhile.
        field()->selectAll();
}

void TypedField::onFocusChanged(QWidget*, QWidget* current)
{
    if (m_field)
        m_field->removeEventFilter(parent());
    m_field = m_area && m_area->isAncestorOf(current) ? qobject_cast<QAbstractSpinBox*>(current) : nullptr;
    Q_EMIT changed(m_field);
    if (m_field)
        m_field->installEventFilter(parent());
    remember();
}

} // namespace zel
