#include "SettingsDrawer.h"

#include "DrawerLayout.h"
#include "ReturnKey.h"
#include "Slide.h"
#include "StyleSheetPause.h"
#include "ZelSettingsPanel.h"

#include <QApplication>
#include <QElapsedTimer>
#include <QScrollBar>

#include <algorithm>

namespace zel {

namespace {

const int PreparingTime = 2; // ms of a frame

/// Qt polishes each new widget when it next processes events, even if it is never shown.
void polishWhenShown(QWidget& tree)
{
    QCoreApplication::removePostedEvents(&tree, QEvent::PolishRequest);
    const QList<QWidget*> descendants = tree.findChildren<QWidget*>();
    for (QWidget* widget : descendants)
        QCoreApplication::removePostedEvents(widget, QEvent::PolishRequest);
}

/// Polishes and measures some widgets, from the leaves to the root. True when nothing is left to do.
bool preparePartly(const QWidget& tree)
{
    const QList<QWidget*> descendants = tree.findChildren<QWidget*>();
    QElapsedTimer clock;
    clock.start();
    for (int index = descendants.size() - 1; index >= 0; --index) {
        if (clock.elapsed() >= PreparingTime)
            return false;
        QWidget& widget = *descendants[index];
        widget.ensurePolished();
        if (widget.layout())
            widget.layout()->totalSizeHint(); // Which it keeps.
    }
    return true;
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
    for (QWidget* widget : {static_cast<QWidget*>(area), area->viewport(), area->widget()})
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
    // All pages together are higher than the drawer, so the first ones get their final width at once.
    const int barWidth = bar->isVisible() || !m_newPages.isEmpty() ? bar->sizeHint().width() : 0;
    m_contentLayout->setMinimumWidth(OpenWidth - barWidth);
    area()->widget()->setFixedWidth(std::max(width - barWidth, 0));
}

void SettingsDrawer::makeRoom(const QWidget& column, int columnWidth)
{
    const int distance = columnWidth - column.width();
    if (isVisible() && distance > 0 && area()->parentWidget() == column.parentWidget() &&
        area()->x() == column.geometry().right() + 1)
        area()->move(area()->x() + distance, area()->y());
}

void SettingsDrawer::showWithoutNewPages()
{
    for (int index = 0; index < m_pageLayout->count(); ++index) {
        QWidget* page = m_pageLayout->itemAt(index)->widget();
        if (page->isHidden() || page->testAttribute(Qt::WA_WState_Polished))
            continue;
        page->hide();
        m_newPages << page;
    }
    area()->show();
}

void SettingsDrawer::showNextPage()
{
    if (m_newPages.isEmpty() || (m_newPages.first() && !preparePartly(*m_newPages.first())))
        return;
    QWidget* page = m_newPages.takeFirst();
    if (page && page->parentWidget() == m_pageLayout->parentWidget())
        page->show();
}

void SettingsDrawer::showAllPages()
{
    while (!m_newPages.isEmpty())
        showNextPage();
    if (!area())
        return;
    // Without waiting for events, so that the places of the pages and the scroll range are right.
    m_pageLayout->activate();
    m_contentLayout->activate();
    QEvent request(QEvent::LayoutRequest);
    QCoreApplication::sendEvent(area(), &request);
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
