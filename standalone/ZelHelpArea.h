#ifndef ZEL_ZELHELPAREA_H
#define ZEL_ZELHELPAREA_H

#include "base/ZelExport.h"

#include <QList>
#include <QPointer>
#include <QWidget>

class QBoxLayout;
class QScrollArea;

namespace zel {

class HelpCard;
class PendingList;
class PointerRest;
class ZelControlCenter;
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
    /// Shows no setting until follow() is called.
    explicit ZelHelpArea(QWidget* parent = nullptr);
    ~ZelHelpArea() override;

    /// Shows the help of the pages of a control center, which is updated with them, and what its user asks
    /// for. Call it once, after the pages are registered.
    void follow(ZelControlCenter& controlCenter);

    /// Uses the empty space of a column below one of its widgets while the area is too narrow. The help is
    /// gone when the column is deleted.
    void useColumn(QWidget* column, QWidget* above);

    /// Places the help again when the column changes, or its own width. Consumes nothing.
    bool eventFilter(QObject* watched, QEvent* event) override;

public Q_SLOTS:
    /// Shows the help on a field, or a hint where there is none. Without room for all of it, the help opens
    /// at the field until the user clicks elsewhere or presses Escape.
    void showHelp(QWidget* field);

protected:
    /// Places the help where there is room.
    void resizeEvent(QResizeEvent* event) override;

private Q_SLOTS:
    void refresh();
    void onLanguageChanged();
    void onHelpRequested();
    void onEdited();
    void onFocusChanged(QWidget* previous, QWidget* current);
    void setField(QWidget* field);
    void place();
    /// Puts the help into the column while the area is too narrow, also when the column has no room yet.
    void moveToColumn();

private:
    void put(QBoxLayout* layout, bool compact);
    int freeHeightOfColumn() const;
    /// Keeps the height of the longest help free above what would be stored.
    void reserveHeight();
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
    PointerRest* const m_rest;
};

} // namespace zel

#endif
