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

/// Takes the style sheets off a widget and all its descendants for as long as it lives. Code that gives a
/// tree of widgets another style or parent does so under a pause: otherwise Qt styles every widget of the
/// tree again for each sheet on the way down. Without it a start takes 29 % more instructions: 12 % for the
/// pages' named sheets, 17 % for their registration.
///
/// A widget that is given another sheet meanwhile keeps that one.
class StyleSheetPause
{
public:
    explicit StyleSheetPause(QWidget& tree)
        : m_widgets{&tree}
    {
        const QList<QWidget*> descendants = tree.findChildren<QWidget*>();
        m_widgets.insert(m_widgets.end(), descendants.begin(), descendants.end());
        // From the leaves to the root, so that no sheet is left below the one that is taken off.
        for (auto widget = m_widgets.rbegin(); widget != m_widgets.rend(); ++widget)
            if (*widget)
                takeSheet(**widget);
    }

    ~StyleSheetPause()
    {
        for (auto sheet = m_sheets.rbegin(); sheet != m_sheets.rend(); ++sheet)
            if (sheet->first && sheet->first->styleSheet().isEmpty())
                sheet->first->setStyleSheet(sheet->second);
        // Qt styles a widget when it is first shown or measured; widgets styled before have missed the
        // sheets.
        for (QWidget* widget : m_widgets)
            if (widget && widget->testAttribute(Qt::WA_WState_Polished))
                style(*widget);
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

    static void style(QWidget& widget)
    {
        widget.style()->unpolish(&widget);
        widget.style()->polish(&widget);
    }

    // Guarded, because a page may delete what it holds when it gets another parent.
    std::vector<QPointer<QWidget>> m_widgets;
    std::vector<std::pair<QPointer<QWidget>, QString>> m_sheets;
};

} // namespace zel

#endif
