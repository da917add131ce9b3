#include "SettingsDrawer.h"

#include "DrawerLayout.h"
#include "ReturnKey.h"
#include "Slide.h"
#include "StyleSheetPause.h"
#include "ZelSettingsPanel.h"

#include <QApplication>
#include <QScrollBar>

#include <algorithm>

namespace zel {

namespace {

/// Qt polishes each new widget when it next processes events, even if it is never shown.
void polishWhenShown(QWidget& tree)
{
    QCoreApplication::removePostedEvents(&tree, QEvent::PolishRequest);
    const QList<QWidget*> descendants = tree.findChildren<QWidget*>();
    for (QWidget* widget : descendants)
        QCoreApplication::removePostedEvents(widget, QEvent::PolishRequest);
}

int heightOf(const QWidget& page, int width)
{
    const int height = page.heightForWidth(width);
    return height >= 0 ? height : std::max(page.sizeHint().height(), 0); // Negative without a layout.
}

} // namespace

SettingsDrawer::SettingsDrawer(QScrollArea* area, QVBoxLayout*& contentLayout, QBoxLayout* pageLayout,
                               QObject* parent)
    : QObject(parent)
    , m_area(area)
    , m_pageLayout(pageLayout)
    , m_contentLayout(new DrawerLayout(contentLayout))
    , m_scrolling(new QPropertyAnimation(area->verticalScrollBar(), "value", this))
{
    contentLayout = m_contentLayout;
    area->parentWidget()->layout()->removeWidget(area);
    area->hide();
    // A slide moves and uncovers what has been painted.
    area->setAutoFillBackground(true);
    for (QWidget* widget :
         {static_cast<QWidget*>(area), area->viewport(), area->widget(), m_pageLayout->parentWidget()})
        widget->setAttribute(Qt::WA_StaticContents);
    m_scrolling->setDuration(SlideTime);
    m_scrolling->setEasingCurve(QEasingCurve::InOutQuad);
    new ReturnKey(area);
    // Queued: QScrollArea shows or hides the bar only after the range has changed.
    connect(area->verticalScrollBar(), SIGNAL(rangeChanged(int, int)), this, SLOT(onRangeChanged()),
            Qt::QueuedConnection);
    // QScrollArea follows only a focus that moves within it.
    connect(qApp, SIGNAL(focusChanged(QWidget*, QWidget*)), this, SLOT(onFocusChanged(QWidget*, QWidget*)));
}

void SettingsDrawer::addPage(ZelSettingsPanel* page)
{
    {
        const StyleSheetPause pause(*page);
        m_pageLayout->addWidget(page);
    }
    if (!isVisible())
        polishWhenShown(*page);
    // What is hidden only with the drawer will be shown, and laid out, with it.
    for (QWidget* widget : {m_pageLayout->parentWidget(), static_cast<QWidget*>(page)})
        if (widget->isHidden())
            widget->show();
}

int SettingsDrawer::width() const
{
    return isVisible() ? area()->minimumWidth() : 0;
}

void SettingsDrawer::setWidth(int width)
{
    if (!area())
        return;
    area()->setVisible(width >= 1);
    area()->setFixedWidth(width);
    const QScrollBar* bar = area()->verticalScrollBar();
    const auto besideBar = [&](int whole, bool hasBar) {
        // All pages together are usually higher than the drawer: the first ones get their final width at
        // once.
        return std::max(hasBar || !m_newPages.isEmpty() ? whole - bar->sizeHint().width() : whole, 0);
    };
    // Pages keep their width while the drawer is hidden, or all would be laid out again when it closes and
    // opens.
    m_contentLayout->setMinimumWidth(besideBar(OpenWidth, bar->isVisibleTo(area())));
    area()->widget()->setFixedWidth(besideBar(width, bar->isVisible()));
}

void SettingsDrawer::makeRoom(const QWidget& column, int columnWidth)
{
    const int distance = columnWidth - column.width();
    if (isVisible() && distance > 0 && area()->parentWidget() == column.parentWidget() &&
        area()->x() == column.geometry().right() + 1)
        area()->move(area()->x() + distance, area()->y());
}

void SettingsDrawer::showWithoutNewPages(double progress)
{
    for (int index = 0; index < m_pageLayout->count(); ++index) {
        QWidget* page = m_pageLayout->itemAt(index)->widget();
        if (page->isHidden() || page->testAttribute(Qt::WA_WState_Polished))
            continue;
        page->hide();
        m_newPages.add(*page);
    }
    m_newPages.begin(progress);
    area()->show();
}

void SettingsDrawer::showNewPages(double progress)
{
    if (QWidget* page = m_newPages.advance(progress))
        show(QList<QPointer<QWidget>>() << page);
}

void SettingsDrawer::showAllPages()
{
    const QPointer<SettingsDrawer> self(this);
    show(m_newPages.takeAll());
    if (self && isVisible())
        setWidth(width()); // The scroll bar may not be needed after all.
}

void SettingsDrawer::show(const QList<QPointer<QWidget>>& pages)
{
    QWidget* const frame = m_pageLayout->parentWidget();
    const QPointer<SettingsDrawer> self(this);
    for (const QPointer<QWidget>& page : pages) {
        if (!area())
            return;
        if (!page || page->parentWidget() != frame || !page->isHidden())
            continue;
        makeRoomFor(*page);
        page->show();
        if (!self) // A page may delete the control center.
            return;
    }
    if (!area())
        return;
    frame->setMinimumHeight(0);
    layOutContent();
    m_pageLayout->activate();
}

void SettingsDrawer::makeRoomFor(const QWidget& page)
{
    QWidget* const frame = m_pageLayout->parentWidget();
    const int width = m_contentLayout->minimumWidth();
    const int height = m_pageLayout->hasHeightForWidth() ? m_pageLayout->totalHeightForWidth(width)
                                                         : m_pageLayout->totalSizeHint().height();
    // Else the pages are squeezed into the old height first, and all are moved and painted again. The page
    // layout waits for the new page, or it would stretch the others.
    m_pageLayout->setEnabled(false);
    frame->setMinimumHeight(height + m_pageLayout->spacing() + heightOf(page, width));
    layOutContent();
    m_pageLayout->setEnabled(true);
}

/// Without waiting for events, so that the places of the pages and the scroll range are right.
void SettingsDrawer::layOutContent()
{
    m_pageLayout->parentWidget()->updateGeometry();
    QEvent request(QEvent::LayoutRequest);
    QCoreApplication::sendEvent(area(), &request);
    m_contentLayout->activate();
}

void SettingsDrawer::scrollTo(const QWidget& widget)
{
    if (!area())
        return;
    showAllPages();
    QScrollBar* bar = area()->verticalScrollBar();
    m_scrolling->stop();
    m_scrolling->setStartValue(bar->value());
    m_scrolling->setEndValue(std::min(widget.y() + widget.parentWidget()->y(), bar->maximum()));
    startSlide(*m_scrolling, *area());
}

ZelSettingsPanel* SettingsDrawer::pageAt(int position) const
{
    if (!area() || m_scrolling->state() == QAbstractAnimation::Running)
        return nullptr;
    const QPoint belowTop(10, position + 10);
    QWidget* widget = area()->widget()->childAt(belowTop);
    while (widget && !qobject_cast<ZelSettingsPanel*>(widget))
        widget = widget->parentWidget();
    return qobject_cast<ZelSettingsPanel*>(widget);
}

void SettingsDrawer::onFocusChanged(QWidget* previous, QWidget* current)
{
    if (!area() || !area()->isAncestorOf(current) || area()->isAncestorOf(previous))
        return;
    // Do not scroll the pages while a mouse button is down.
    if (QApplication::mouseButtons() == Qt::NoButton)
        area()->ensureWidgetVisible(current, 0);
}

void SettingsDrawer::onRangeChanged()
{
    // Each step of a slide does so.
    if (width() == OpenWidth)
        setWidth(width());
}

} // namespace zel
