#ifndef ZEL_STYLESHEETPAUSE_H
#define ZEL_STYLESHEETPAUSE_H

#include <QList>
#include <QString>
#include <QWidget>

#include <utility>
#include <vector>

namespace zel {

/// Takes the style sheets off a widget and all its descendants for as long as it lives. What gives a tree of
/// widgets another style or parent does so under a pause: otherwise the toolkit styles every widget of the
/// tree anew for each sheet on the way down, which used to be half of the time that the window took to open.
///
/// None of the widgets may be deleted meanwhile.
class StyleSheetPause
{
public:
    explicit StyleSheetPause(QWidget& tree)
    {
        const QList<QWidget*> descendants = tree.findChildren<QWidget*>();
        // From the leaves to the root, so that no sheet is left below the one that is taken off.
        for (int i = descendants.size() - 1; i >= 0; --i)
            takeSheet(*descendants[i]);
        takeSheet(tree);
    }

    ~StyleSheetPause()
    {
        for (auto sheet = m_sheets.rbegin(); sheet != m_sheets.rend(); ++sheet)
            sheet->first->setStyleSheet(sheet->second);
    }

    StyleSheetPause(const StyleSheetPause&) = delete;
    StyleSheetPause& operator=(const StyleSheetPause&) = delete;

private:
    void takeSheet(QWidget& widget)
    {
        if (widget.styleSheet().isEmpty())
            return;
        m_sheets.emplace_back(&widget, widget.styleSheet());
        widget.setStyleSheet(QString());
    }

    std::vector<std::pair<QWidget*, QString>> m_sheets;
};

} // namespace zel

#endif
