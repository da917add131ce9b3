#ifndef ZEL_PAGEBUTTONS_H
#define ZEL_PAGEBUTTONS_H

#include <QList>
#include <QMap>
#include <QObject>

class QAbstractButton;
class QBoxLayout;
class QButtonGroup;
class QWidget;

namespace zel {

class PageList;
class ZelSettingsPanel;

/// The list of pages in the column of the control center: one button for each page, of which one is checked.
/// When the user has chosen a page, the Tab key goes from its button to its first field.
class PageButtons : public QObject
{
    Q_OBJECT

public:
    /// Fills a layout. The Tab key visits the buttons before the successors, which belong to the column, too.
    PageButtons(QBoxLayout* layout, const QList<QWidget*>& successors, QObject* parent);

    void add(ZelSettingsPanel* page);
    /// Leaves the button without a parent.
    void remove(ZelSettingsPanel* page);
    /// The button that is checked; null when none is.
    QWidget* checkedButton() const;

    /// Marks the buttons of the pages that have pending edits. True when there is one.
    static bool mark(const PageList& pages);

    bool eventFilter(QObject* watched, QEvent* event) override;

Q_SIGNALS:
    void chosen(const QString& pageName);

private Q_SLOTS:
    void onClicked(QAbstractButton* button);

private:
    QBoxLayout* const m_layout;
    const QList<QWidget*> m_successors;
    QButtonGroup* const m_group;
    QMap<QObject*, ZelSettingsPanel*> m_pages; ///< By their buttons.
    QObject* m_chosen = nullptr;               ///< The button of the chosen page, while it keeps the focus.
};

} // namespace zel

#endif
