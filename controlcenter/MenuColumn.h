#ifndef ZEL_MENUCOLUMN_H
#define ZEL_MENUCOLUMN_H

#include <QList>
#include <QMap>
#include <QString>

#include <memory>

class QBoxLayout;
class QColor;
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
    /// In pixels, when it is open.
    static const int OpenWidth = 250;

    /// Fills a frame of the owner with an item for the action "Settings". The owner owns the items and the
    /// separators, and has the slots closeMenu() and openSettings().
    MenuColumn(QWidget* owner, QFrame* frame);
    ~MenuColumn();

    void setVisible(bool visible);
    /// Lets the column take space beside what else is in its layout, or none.
    void giveSpace(bool given);
    /// The colour of the background, without alpha.
    void setColor(const QColor& color);

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
    /// Sets the texts of the action "Settings" in the language of the interface.
    void setTexts();
    /// Index of the anchor in the layout; -1, which QBoxLayout takes for the bottom, when no item has it.
    int anchorIndex(const QString& anchorName) const;
    /// Puts a new item into the order of the Tab key, which visits the items from top to bottom.
    void orderFocus(ZelCCActionItem* added) const;

    QWidget* const m_owner;
    QFrame* const m_frame;
    QBoxLayout* const m_layout;
    std::unique_ptr<zelAction> m_settingsAction;
    QList<ZelCCActionItem*> m_items;
    QMap<QString, QFrame*> m_separators;
};

} // namespace zel

#endif
