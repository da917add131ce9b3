#ifndef ZEL_STYLESHEETPAUSE_H
#define ZEL_STYLESHEETPAUSE_H

#include <QCoreApplication>
#include <QEvent>
#include <QList>
#include <QString>
#include <QStyle>
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
        : m_widgets(tree.findChildren<QWidget*>())
    {
        m_widgets.prepend(&tree);
        // From the leaves to the root, so that no sheet is left below the one that is taken off.
        for (int i = m_widgets.size() - 1; i >= 0; --i)
            takeSheet(*m_widgets[i]);
    }

    ~StyleSheetPause()
    {
        for (auto sheet = m_sheets.rbegin(); sheet != m_sheets.rend(); ++sheet)
            sheet->first->setStyleSheet(sheet->second);
        // The toolkit styles a widget when it is first shown or measured; the others have missed the sheets.
        for (QWidget* widget : std::as_const(m_widgets))
            if (widget->testAttribute(Qt::WA_WState_Polished))
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
        QEvent change(QEvent::StyleChange);
        QCoreApplication::sendEvent(&widget, &change);
    }

    QList<QWidget*> m_widgets;
    std::vector<std::pair<QWidget*, QString>> m_sheets;
};

} // namespace zel

#endif
