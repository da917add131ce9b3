#ifndef ZEL_CLICKOUTSIDE_H
#define ZEL_CLICKOUTSIDE_H

#include <QElapsedTimer>
#include <QObject>
#include <QPointer>
#include <QWidget>

class kqDMIApplication;

namespace zel {

/// Tells that the user clicks into the viewer's main view, outside the menu. Its owner filters the events of
/// the application and passes them to eventFilter(), which consumes none.
class ClickOutside : public QObject
{
    Q_OBJECT

public:
    ClickOutside(kqDMIApplication* application, QObject* parent);

    /// Only a click inside this widget counts; any does when it is null.
    void setHandler(QWidget* handler) { m_handler = handler; }

    bool eventFilter(QObject* watched, QEvent* event) override;

Q_SIGNALS:
    /// A receiver may delete this object.
    void clicked();

private Q_SLOTS:
    /// A mouse press has reached all its receivers; the next one counts as another click.
    void onPressDelivered();

private:
    bool isOutside(QObject* watched, const QPoint& globalPosition) const;

    kqDMIApplication* const m_application;
    QPointer<QWidget> m_handler;
    QElapsedTimer m_timer;
    bool m_pressHandled = false; ///< The mouse press that is being delivered has already counted as a click.
};

} // namespace zel

#endif
