#ifndef ZEL_CONTROLCENTERACTIONS_H
#define ZEL_CONTROLCENTERACTIONS_H

#include <QList>
#include <QObject>
#include <QPointer>

class QAction;
class QKeyEvent;
class QKeySequence;
class QPushButton;
class QScrollArea;
class QWidget;

namespace zel {

class TypedField;

/// The keyboard commands of the control center, as actions. They have no shortcuts, which could clash with
/// those of the application; it may set some. Keys that no other widget takes work without a shortcut: Escape
/// undoes typing, and Page Up, Page Down, Home and End scroll the drawer while the column has the focus.
///
/// The column and the drawer both have the actions, and their shortcuts work while the focus is in one of the
/// two. The column owns this object.
class ControlCenterActions : public QObject
{
    Q_OBJECT

public:
    ControlCenterActions(QWidget* column, QScrollArea* drawer, QPushButton* apply, QPushButton* reset);

    /// Enables the actions for pending edits: "discard", and "restore".
    void enable(bool discard, bool restore);

    /// What Escape puts back.
    TypedField& typedField() { return *m_typed; }

    bool eventFilter(QObject* watched, QEvent* event) override;

Q_SIGNALS:
    /// The user asks for help on a field; null when no field of the drawer has the focus.
    void helpRequested(QWidget* field);
    void discardRequested();
    void restoreRequested();

private Q_SLOTS:
    void putBack();
    void requestHelp();
    void scroll();

private:
    /// Becomes the owner of the action.
    QAction* add(const char* name, QAction* action);
    void setTexts();
    bool press(const QKeyEvent& event, bool inColumn);
    /// True for the keys that discard or restore edits, while the focused field has nothing of its own to
    /// undo or redo; the field would take them all the same.
    bool leavesToCommand(QKeyEvent& event) const;
    /// True for the keys of "Apply".
    bool appliesEdits(const QKeySequence& keys) const;
    /// True for the keys of an action or a button of the control center, or of an action of its window.
    bool triggersCommand(const QKeySequence& keys) const;

    QWidget* const m_column;
    const QPointer<QWidget> m_drawer;
    TypedField* const m_typed;
    QAction* const m_apply;
    QList<QAction*> m_commands; ///< In the order of their table.
};

} // namespace zel

#endif
