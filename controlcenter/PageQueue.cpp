#include "PageQueue.h"

#include <QLayout>

#include <numeric>

namespace zel {

void PageQueue::add(QWidget& page)
{
    // From the leaves to the root. All are polished first: when the page is, it may tell them of their style,
    // which forgets their sizes.
    QList<QWidget*> widgets = page.findChildren<QWidget*>();
    widgets.prepend(&page);
    for (int index = widgets.size() - 1; index >= 0; --index)
        m_steps << Step{Polish, widgets[index]};
    for (int index = widgets.size() - 1; index >= 0; --index)
        if (widgets[index]->layout())
            m_steps << Step{Measure, widgets[index]};
    m_steps << Step{Show, &page};
}

void PageQueue::begin(double progress)
{
    m_begin = progress;
    m_work = m_workLeft = std::accumulate(m_steps.begin(), m_steps.end(), 0,
                                          [](int work, const Step& step) { return work + step.kind; });
}

QWidget* PageQueue::advance(double progress)
{
    const double workAtEnd = m_begin < 1 ? m_work * (1 - progress) / (1 - m_begin) : 0;
    for (bool first = true; m_workLeft > workAtEnd && !m_steps.isEmpty(); first = false) {
        if (m_steps.first().kind == Show && !first)
            return nullptr; // To appear is enough work for one frame.
        const Step step = m_steps.takeFirst();
        m_workLeft -= step.kind;
        if (!step.widget)
            continue;
        if (step.kind == Polish)
            step.widget->ensurePolished();
        else if (step.kind == Measure && step.widget->layout())
            step.widget->layout()->totalSizeHint(); // Which it keeps.
        if (step.kind == Show)
            return step.widget;
    }
    return nullptr;
}

QList<QPointer<QWidget>> PageQueue::takeAll()
{
    QList<QPointer<QWidget>> pages;
    for (const Step& step : m_steps)
        if (step.kind == Show)
            pages << step.widget;
    m_steps.clear();
    return pages;
}

} // namespace zel
