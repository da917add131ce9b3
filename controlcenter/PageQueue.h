#ifndef ZEL_PAGEQUEUE_H
#define ZEL_PAGEQUEUE_H

#include <QList>
#include <QPointer>
#include <QWidget>

namespace zel {

/// The pages of the drawer that have not been seen yet. A page is styled and laid out when it is first shown,
/// which takes as long as half a frame. While the drawer slides open for the first time, this is done in
/// steps, which are spread evenly over the slide.
class PageQueue
{
public:
    bool isEmpty() const { return m_steps.isEmpty(); }
    void add(QWidget& page);

    /// Spreads the steps over what is left of a slide.
    /// @param progress  of the slide, from 0 to 1
    void begin(double progress);
    /// Does the steps that belong to this progress, up to a page that is to be shown now, which is returned;
    /// else null.
    QWidget* advance(double progress);

    /// Empties the queue. Returns its pages, in order; those that were deleted are null.
    QList<QPointer<QWidget>> takeAll();

private:
    /// What there is to do for a page, and how much work it is beside the others.
    enum StepKind { Polish = 1, Measure = 2, Show = 20 };
    struct Step
    {
        StepKind kind;
        QPointer<QWidget> widget;
    };

    QList<Step> m_steps;
    double m_begin = 0; ///< The progress from which on the steps are spread over the slide.
    int m_work = 0;     ///< Of all steps.
    int m_workLeft = 0;
};

} // namespace zel

#endif
