#ifndef ZEL_PENDINGLIST_H
#define ZEL_PENDINGLIST_H

#include <QFrame>
#include <QList>
#include <QPointer>
#include <QStringList>

class QLabel;
class QSignalMapper;
class QVBoxLayout;

namespace zel {

class ZelSettingsPanel;

/// What Apply would store: a line for each pending edit of the pages. A click on a line goes to its field,
/// the small button beside it puts the stored value back. Hidden while nothing is pending.
class PendingList : public QFrame
{
    Q_OBJECT

public:
    /// The parent owns the list.
    explicit PendingList(QWidget* parent);

    /// The pages whose edits it shows, from top to bottom.
    void setPages(const QList<ZelSettingsPanel*>& pages);

public Q_SLOTS:
    /// Call it after every edit, Apply and Reset.
    void refresh();

private Q_SLOTS:
    void goToField(int line);
    void putBack(int line);

private:
    void addRow();
    void setTexts();

    QList<QPointer<ZelSettingsPanel>> m_pages;
    QLabel* m_title;
    QVBoxLayout* m_lines;
    QSignalMapper* m_goTo;
    QSignalMapper* m_putBack;
    QStringList m_shown; ///< The texts of the lines.
};

} // namespace zel

#endif
