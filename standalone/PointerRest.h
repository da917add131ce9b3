#ifndef ZEL_POINTERREST_H
#define ZEL_POINTERREST_H

#include <QObject>
#include <QPoint>
#include <QPointer>

class QTimer;
class QWidget;

namespace zel {

/// Tells on which field the pointer rests, and not over which it passes.
class PointerRest : public QObject
{
    Q_OBJECT

public:
    explicit PointerRest(QObject* parent);

    /// Forgets the field that the pointer has reached.
    void stop();

Q_SIGNALS:
    void rested(QWidget* field);

public Q_SLOTS:
    /// To be called when the pointer has reached a field.
    void onReached(QWidget* field);

private Q_SLOTS:
    void onTimeout();

private:
    QTimer* const m_timer;
    QPointer<QWidget> m_field;
    QPoint m_pointer; ///< Where it was when the timer began.
};

} // namespace zel

#endif
