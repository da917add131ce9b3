#ifndef ZEL_CONTROLCENTERACTIONS_H
#define ZEL_CONTROLCENTERACTIONS_H

#include <QObject>
#include <QPointer>
#include <QString>
#include <QVariant>

class QAbstractSpinBox;
class QAction;
class QKeyEvent;
class QPushButton;
class QScrollArea;
class QWidget;

namespace zel {

/// What the keyboard does in the control center, each thing as an action that an application can give
/// shortcuts of its own. By themselves the actions have none, so that they clash with nothing; but a key
/// press that nothing else takes puts back what is being typed (Escape), and scrolls the drawer from the
/// column (Page Up, Page Down, Home, End).
///
/// The actions belong to the column and to the drawer, and their shortcuts work while one of these two has
/// the focus. Belongs to the column.
class ControlCenterActions : public QObject
{
    Q_OBJECT

public:
    ControlCenterActions(QWidget* column, QScrollArea* drawer, QPushButton* apply, QPushButton* reset);

    bool eventFilter(QObject* watched, QEvent* event) override;

Q_SIGNALS:
    /// The user wants to know about a field; null when no field has the focus.
    void helpRequested(QWidget* field);

private Q_SLOTS:
    void onFocusChanged(QWidget* former, QWidget* current);
    /// Takes what a field shows for what Escape puts back.
    void rememberField();
    void putBack();
    void requestHelp();
    void scroll();

private:
    /// Takes the action over.
    QAction* add(const char* name, QAction* action);
    bool press(const QKeyEvent& event, bool inColumn);

    QWidget* const m_column;
    const QPointer<QScrollArea> m_drawer;
    QAction* m_putBack;
    QPointer<QAbstractSpinBox> m_field; ///< The number field that has the focus.
    QVariant m_value;                   ///< What it held before the user began to type.
    QString m_text;                     ///< How it showed that.
};

} // namespace zel

#endif
