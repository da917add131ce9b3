#ifndef ZEL_MENUCOLUMN_H
#define ZEL_MENUCOLUMN_H

#include <QList>
#include <QMap>
#include <QString>

class QBoxLayout;
class QFrame;
class QWidget;
class zelAction;

namespace zel {

class ZelCCActionItem;

/// The items and separators in the menu column of the control center. An anchor is the name of an action that
/// has an item; an empty name stands for the top of the column, and one that no item has for the bottom.
class MenuColumn
{
public:
    /// Fills a layout of the owner, which owns the items and separators and has the slot closeMenu().
    MenuColumn(QWidget* owner, QBoxLayout* layout);

    /// Adds an item for the action, before or after its anchor.
    /// @param closesMenu  choosing the action closes the menu
    void addAction(zelAction* action, const QString& anchorName, bool isWorkflowSpecific, bool after,
                   bool closesMenu);
    /// Deletes every item of the action.
    void removeAction(zelAction* action);

    /// Adds a line before an anchor. False when the name is taken.
    bool addSeparator(const QString& anchorName, const QString& separatorName);
    /// False when there is no separator of that name.
    bool setSeparatorVisible(const QString& separatorName, bool visible);

private:
    /// Index of the anchor in the layout; -1, which QBoxLayout takes for the bottom, when no item has it.
    int anchorIndex(const QString& anchorName) const;
    /// Puts a new item into the order of the Tab key, which visits the items from top to bottom.
    void orderFocus(ZelCCActionItem* added) const;

    QWidget* const m_owner;
    QBoxLayout* const m_layout;
    QList<ZelCCActionItem*> m_items;
    QMap<QString, QFrame*> m_separators;
};

} // namespace zel

#endif
