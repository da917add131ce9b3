#ifndef ZEL_ZELHELPAREA_H
#define ZEL_ZELHELPAREA_H

#include "base/ZelExport.h"

#include <QList>
#include <QPoint>
#include <QPointer>
#include <QWidget>

class QBoxLayout;
class QScrollArea;
class QTimer;

namespace zel {

class HelpCard;
class PendingList;
class ZelPageHelp;

/// The area beside the pages with the help on one setting, and below it what Apply would store. The setting
/// is that of the field which has got the keyboard focus last, or on which the pointer rests. A pointer on
/// its way to the help changes nothing. What would be stored stands still while the help changes.
///
/// While the area is too narrow, both stand in the column of the pages' list instead. Where that is too low
/// as well, the column has only what would be stored, and showHelp() opens the help at the field.
///
/// The help comes from the ZelPageHelp of each page.
class ZEL_EXPORT ZelHelpArea : public QWidget
{
    Q_OBJECT

public:
    /// Shows no setting until watchPages() is called.
    explicit ZelHelpArea(QWidget* parent = nullptr);
    ~ZelHelpArea() override;

    /// Shows the help of the pages among the descendants of a widget. Call it once, after they are
    /// registered.
    void watchPages(QWidget* tree);

    /// Uses the empty space of a column below one of its widgets while the area is too narrow. The help is
    /// gone when the column is deleted.
    void useColumn(QWidget* column, QWidget* above);

    /// Places the help again when the column changes, or its own width. Consumes nothing.
    bool eventFilter(QObject* watched, QEvent* event) override;

public Q_SLOTS:
    /// Shows the help on a field, or a hint where there is none. Without room for all of it, the help opens
    /// at the field until the user clicks elsewhere or presses Escape.
    void showHelp(QWidget* field);
    /// The same for the focused field.
    void showHelpOfFocusedField();
    /// Updates the area. Call it after edits are applied or discarded.
    void refresh();

Q_SIGNALS:
    /// The user wants all pending edits to be discarded.
    void discardRequested();

protected:
    /// Places the help where there is room.
    void resizeEvent(QResizeEvent* event) override;

private Q_SLOTS:
    void onLanguageChanged();
    void onEdited();
    void onReached(QWidget* field);
    void onFocusChanged(QWidget* previous, QWidget* current);
    void onRest();
    void place();
    /// Puts the help into the column while the area is too narrow, also when the column has no room yet.
    void moveToColumn();

private:
    void put(QBoxLayout* layout, bool compact);
    int freeHeightOfColumn() const;
    /// Keeps the height of the longest help free above what would be stored.
    void reserveHeight();
    int heightOfLongestHelp(int width) const;
    void openAt(QWidget& field);

    const QPointer<QWidget> m_help; ///< What is placed: the card and the list below it.
    QScrollArea* const m_cardArea;
    HelpCard* const m_card;
    PendingList* const m_pending;
    QBoxLayout* m_areaLayout;
    QBoxLayout* m_columnLayout = nullptr;
    QPointer<QWidget> m_columnHost; ///< A child of the column, over its empty space.
    QPointer<QWidget> m_above;
    QList<QPointer<ZelPageHelp>> m_pages;
    int m_reservedWidth = 0; ///< The width for which a height is reserved; 0 for none.
    QPointer<QWidget> m_hovered;
    QPoint m_pointer; ///< Where it was when the rest began.
    QTimer* const m_rest;
};

} // namespace zel

#endif
