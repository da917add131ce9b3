#include "StyleSheetPause.h"

#include <QApplication>
#include <QEvent>
#include <QStyle>
#include <QWidget>

namespace zel {

namespace {

void tellOfStyle(QWidget& tree)
{
    const QList<QWidget*> descendants = tree.findChildren<QWidget*>();
    std::vector<QPointer<QWidget>> widgets{&tree};
    widgets.insert(widgets.end(), descendants.begin(), descendants.end());
    for (const QPointer<QWidget>& widget : widgets) {
        QEvent change(QEvent::StyleChange);
        if (widget)
            QCoreApplication::sendEvent(widget, &change);
    }
}

/// Tells a tree of its style when Qt polishes it.
class LateStyleChange : public QObject
{
public:
    explicit LateStyleChange(QWidget& tree)
        : QObject(&tree)
        , m_tree(tree)
    {
        setObjectName(Name);
        tree.installEventFilter(this);
    }

    static bool isDue(const QWidget& tree) { return tree.findChild<QObject*>(Name); }

    bool eventFilter(QObject* watched, QEvent* event) override
    {
        if (watched != &m_tree || event->type() != QEvent::Polish)
            return false;
        m_tree.removeEventFilter(this);
        setObjectName(QString());
        deleteLater();
        // QComboBox chooses its kind of list by the style that has polished it.
        QCoreApplication::sendEvent(&m_tree, event);
        const QList<QWidget*> descendants = m_tree.findChildren<QWidget*>();
        for (QWidget* widget : descendants)
            widget->ensurePolished();
        tellOfStyle(m_tree);
        return true;
    }

private:
    static constexpr const char* Name = "lateStyleChange";

    QWidget& m_tree;
};

} // namespace

StyleSheetPause::StyleSheetPause(QWidget& tree)
    : m_tree(tree)
    , m_widgets{&tree}
{
    qApp->installEventFilter(this);
    const QList<QWidget*> descendants = tree.findChildren<QWidget*>();
    m_widgets.insert(m_widgets.end(), descendants.begin(), descendants.end());
    // From the leaves to the root: a change polishes everything below it, with the sheets there.
    for (auto widget = m_widgets.rbegin(); widget != m_widgets.rend(); ++widget)
        if (*widget)
            removeSheet(**widget);
}

StyleSheetPause::~StyleSheetPause()
{
    for (auto sheet = m_sheets.rbegin(); sheet != m_sheets.rend(); ++sheet)
        if (sheet->first && sheet->first->styleSheet().isEmpty())
            sheet->first->setStyleSheet(sheet->second);
    // Qt polishes a widget when it is first shown or measured. Those that are already polished have missed
    // the sheets.
    for (QWidget* widget : m_widgets)
        if (widget && widget->testAttribute(Qt::WA_WState_Polished)) {
            widget->style()->unpolish(widget);
            widget->style()->polish(widget);
        }
    qApp->removeEventFilter(this);
    if (m_tree.testAttribute(Qt::WA_WState_Polished))
        tellOfStyle(m_tree);
    else if (!LateStyleChange::isDue(m_tree))
        new LateStyleChange(m_tree); // NOLINT(bugprone-unhandled-exception-at-new): fatal in any case
}

bool StyleSheetPause::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() != QEvent::StyleChange)
        return false;
    const auto* widget = qobject_cast<QWidget*>(watched);
    return widget && (widget == &m_tree || m_tree.isAncestorOf(widget));
}

void StyleSheetPause::removeSheet(QWidget& widget)
{
    if (widget.styleSheet().isEmpty())
        return;
    m_sheets.emplace_back(&widget, widget.styleSheet());
    widget.setStyleSheet(QString());
}

} // namespace zel
