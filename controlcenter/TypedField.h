#ifndef ZEL_TYPEDFIELD_H
#define ZEL_TYPEDFIELD_H

#include <QObject>
#include <QPointer>
#include <QString>
#include <QVariant>

class QAbstractSpinBox;
class QWidget;

namespace zel {

/// The spin box that has the focus within an area, and what it showed before the user typed.
class TypedField : public QObject
{
    Q_OBJECT

public:
    /// @param parent  also filters the events of the field
    TypedField(QWidget* area, QObject* parent);

    /// Null when none has the focus.
    QAbstractSpinBox* field() const;
    /// True when the field shows another text than before the user typed.
    bool isTyped() const;
    /// True when the field has something of its own to undo or redo.
    bool hasHistory() const;
    /// Reads a number that is half typed.
    /// @param endsEdit  lets the page take it as well, as the Tab key does
    void take(bool endsEdit);

public Q_SLOTS:
    /// Stores what the field shows, for putBack().
    void remember();
    void putBack();

Q_SIGNALS:
    /// The focus has entered or left a field.
    void changed(bool hasField);

private Q_SLOTS:
    void onFocusChanged(QWidget* previous, QWidget* current);

private:
    const QPointer<QWidget> m_area;
    QPointer<QWidget> m_field; ///< It may be about to be destroyed.
    QVariant m_value;          ///< Its value before the user typed; invalid if that is stored.
    QString m_text;            ///< Its text before the user typed.
};

} // namespace zel

#endif
