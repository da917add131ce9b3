#ifndef ZEL_STYLESHEETPAUSE_H
#define ZEL_STYLESHEETPAUSE_H

#include <QList>
#include <QPointer>
#include <QString>
#include <QStyle>
#include <QWidget>

#include <utility>
#include <vector>

namespace zel {

/// Removes the style sheets of a widget and its descendants while it lives, and restores them at its end. Use
/// it around a change of style or parent of a widget tree: otherwise Qt polishes the whole tree once for each
/// style sheet in it. Without it a start takes 29 % more instructions: 12 % for the pages' named sheets, 17 %
/// for their registration.
///
/// A widget that gets another style sheet meanwhile keeps that one.
class StyleSheetPause
{
public:
    explicit StyleSheetPause(QWidget& tree)
        : m_widgets{&tree}
    {
        const QList<QWidget*> descendants = tree.findChildren<QWidget*>();
        m_widgets.insert(m_widgets.end(), descendants.begin(), descendants.end());
        // From the leaves to the root: a change polishes everything below it, with the sheets there.
        for (auto widget = m_widgets.rbegin(); widget != m_widgets.rend(); ++widget)
            if (*widget)
                removeSheet(**widget);
    }

    ~StyleSheetPause()
    {
        for (auto sheet = m_sheets.rbegin(); sheet != m_sheets.rend(); ++sheet)
            if (sheet->first && sheet->first->styleSheet().isEmpty())
                sheet->first->setStyleSheet(sheet->second);
        // Qt polishes a widget when it is first shown or measured. Those that are already polished have
        // missed the sheets.
        for (QWidget* widget : m_widgets)
            if (widget && widget->testAttribute(Qt::WA_WState_Polished))
                repolish(*widget);
    }

    StyleSheetPause(const StyleSheetPause&) = delete;
    StyleSheetPause& operator=(const StyleSheetPause&) = delete;

private:
    void removeSheet(QWidget& widget)
    {
        if (widget.styleSheet().isEmpty())
            return;
        m_sheets.emplace_back(&widget, widget.styleSheet());
        widget.setStyleSheet(QString());
    }

    static void repolish(QWidget& widget)
    {
        widget.style()->unpolish(&widget);
        widget.style()->polish(&widget);
    }

    // QPointer, because a page may delete children when its parent changes.
    std::vector<QPointer<QWidget>> m_widgets;
    std::vector<std::pair<QPointer<QWidget>, QString>> m_sheets;
};

} // namespace zel

#endif
