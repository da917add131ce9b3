#ifndef ZEL_PENDINGLIST_H
#define ZEL_PENDINGLIST_H

#include <QFrame>
#include <QList>
#include <QPointer>
#include <QStringList>

class QLabel;
class QPushButton;
class QScrollArea;
class QSignalMapper;
class QVBoxLayout;

namespace zel {

class ZelSettingsPanel;
struct ZelPendingEdit;

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

public Q_SLOTS:
    /// Call it after every edit, Apply and Reset.
    void refresh();

Q_SIGNALS:
    void discardRequested();

private Q_SLOTS:
    /// False when the field of the line is hidden.
    bool goToField(int line);
    void putBack(int line);
    void discard();

private:
    void addRow();
    void showEdit(int row, const ZelPendingEdit& edit);
    void setTexts();

    QList<QPointer<ZelSettingsPanel>> m_pages;
    QLabel* const m_title;
    QPushButton* const m_discard;
    QVBoxLayout* const m_lines;
    QScrollArea* m_area; ///< In which the lines scroll.
    QSignalMapper* const m_goTo;
    QSignalMapper* const m_putBack;
    QStringList m_shown; ///< The texts of the lines.
};

} // namespace zel

#endif
