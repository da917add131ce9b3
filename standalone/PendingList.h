#ifndef ZEL_PENDINGLIST_H
#define ZEL_PENDINGLIST_H

#include "ZelPageEdits.h"

#include <QFrame>
#include <QList>
#include <QPointer>
#include <QStringList>

#include <utility>
#include <vector>

class QLabel;
class QPushButton;
class QScrollArea;
class QSignalMapper;
class QVBoxLayout;

namespace zel {

class ZelSettingsPanel;

/// What Apply would store: a line for each pending edit of the pages. A click on a line goes to its field,
/// the small button beside it puts the stored value back, and one beside the heading discards all edits.
/// Hidden while nothing is pending.
class PendingList : public QFrame
{
    Q_OBJECT

public:
    /// The parent owns the list.
    explicit PendingList(QWidget* parent);

    /// The pages whose edits it shows, from top to bottom.
    void setPages(const QList<ZelSettingsPanel*>& pages);

    /// Scrolls after a few lines, for a low place.
    void setCompact(bool compact);

    /// Call it after an edit that its page may not announce: it is listed while Apply is enabled.
    void onEdited();
    /// Call it when pages may have got or lost modifications, which enables or disables Apply.
    void refresh();

Q_SIGNALS:
    void discardRequested();

private Q_SLOTS:
    /// False when the field of the line is hidden.
    bool goToField(int line);
    void putBack(int line);

private:
    static bool goTo(const ZelPendingEdit& edit);
    void showEdits();
    /// Moves the focus from a line that goes away, because there are only so many edits, to its field.
    void moveFocusBefore(int count);
    void addRow();
    /// An edit without field and function when its page is gone.
    ZelPendingEdit editAt(int line) const;
    void showEdit(int row, const ZelPendingEdit& edit);
    void setTexts();

    QList<QPointer<ZelSettingsPanel>> m_pages;
    QLabel* const m_title;
    QPushButton* const m_discard;
    QVBoxLayout* const m_lines;
    QScrollArea* const m_area; ///< In which the lines scroll.
    QSignalMapper* const m_goTo;
    QSignalMapper* const m_putBack;
    /// The lines, each with its page.
    std::vector<std::pair<QPointer<ZelSettingsPanel>, ZelPendingEdit>> m_edits;
    QStringList m_shown; ///< The texts of the lines.
    bool m_canApply = false;
};

} // namespace zel

#endif
