#ifndef ZEL_STYLESHEETPAUSE_H
#define ZEL_STYLESHEETPAUSE_H

#include <QObject>
#include <QPointer>
#include <QString>

#include <utility>
#include <vector>

class QWidget;

namespace zel {

/// Removes the style sheets of a widget and its descendants while it lives, and restores them at its end. Use
/// it around a change of style or parent of a widget tree: otherwise Qt polishes the whole tree once for each
/// style sheet in it. A widget that gets another style sheet meanwhile keeps that one.
///
/// The widgets learn only once that their style has changed: at the end of the pause, or if the tree has not
/// been polished yet, when Qt polishes it, which it does before the first use.
class StyleSheetPause : public QObject
{
public:
    explicit StyleSheetPause(QWidget& tree);
    ~StyleSheetPause() override;

    /// Holds back the style changes of the tree.
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void removeSheet(QWidget& widget);

    QWidget& m_tree;
    // QPointer, because a page may delete children when its parent changes.
    std::vector<QPointer<QWidget>> m_widgets;
    std::vector<std::pair<QPointer<QWidget>, QString>> m_sheets;
};

} // namespace zel

#endif
