#include "ZelHelpArea.h"

#include "HelpCard.h"
#include "LanguageFollower.h"
#include "OpenedHelp.h"
#include "PendingList.h"
#include "PointerRest.h"
#include "VerticalArea.h"
#include "ZelControlCenter.h"
#include "ZelPageHelp.h"
#include "ZelSettingsPanel.h"

#include <QAction>
#include <QApplication>
#include <QEvent>
#include <QScrollBar>
#include <QVBoxLayout>

namespace zel {

namespace {

// In pixels.
const int MinimumWidth = 310; // fits the longest words of all languages, also beside a scroll bar
const int MinimumHeight = 220;
const int MinimumListHeight = 120; // without the help
const int Margin = 12;
const int ColumnMargin = 8;
const int MaximumWidth = 520;
const int MinimumCardHeight = 100;

/// Independent of its scroll bar: else the help and the bar that it needs could hide each other in turns.
int roomOf(const QWidget& area)
{
    for (const QWidget* around = area.parentWidget(); around; around = around->parentWidget())
        if (qobject_cast<const QScrollArea*>(around))
            return around->width();
    return area.width();
}

QVBoxLayout* newLayout(QWidget* widget, int margin)
{
    auto* layout = new QVBoxLayout(widget);
    layout->setContentsMargins(margin, margin, margin, margin);
    return layout;
}

QScrollArea* newCardArea(QWidget* parent)
{
    auto* area = new VerticalArea(new QWidget, MinimumCardHeight, parent);
    newLayout(area->widget(), 0)->addStretch();
    area->setMinimumHeight(MinimumCardHeight);
    area->setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Ignored);
    return area;
}

} // namespace

ZelHelpArea::ZelHelpArea(QWidget* parent)
    : QWidget(parent)
    , m_help(new QWidget(this))
    , m_cardArea(newCardArea(m_help))
    , m_card(new HelpCard(m_cardArea->widget())) // To move it there later would style it twice.
    , m_pending(new PendingList(m_help))
    , m_areaLayout(newLayout(this, Margin))
    , m_rest(new PointerRest(this))
{
    m_help->setMaximumWidth(MaximumWidth);
    static_cast<QBoxLayout*>(m_cardArea->widget()->layout())->insertWidget(0, m_card);
    auto* layout = newLayout(m_help, 0);
    layout->addWidget(m_cardArea, 1);
    layout->addWidget(m_pending);
    layout->addStretch();
    m_areaLayout->addWidget(m_help);
    m_cardArea->installEventFilter(this);
    new LanguageFollower(this, [this] { // Queued: when the pages have followed.
        QMetaObject::invokeMethod(this, "onLanguageChanged", Qt::QueuedConnection);
    });
    connect(m_rest, SIGNAL(rested(QWidget*)), this, SLOT(setField(QWidget*)));
    connect(qApp, SIGNAL(focusChanged(QWidget*, QWidget*)), this, SLOT(onFocusChanged(QWidget*, QWidget*)));
}

ZelHelpArea::~ZelHelpArea()
{
    delete m_columnHost;
}

void ZelHelpArea::follow(ZelControlCenter& controlCenter)
{
    // Buttons such as Reset change a page without an edit in a field.
    connect(&controlCenter, SIGNAL(pagesChanged()), this, SLOT(refresh()));
    connect(&controlCenter, SIGNAL(helpRequested(QWidget*)), this, SLOT(onHelpRequested()));
    connect(m_pending, SIGNAL(discardRequested()), controlCenter.findChild<QAction*>("discard"),
            SLOT(trigger()));
    QWidget* drawer = controlCenter.settingsWidget();
    m_pending->setPages(drawer->findChildren<ZelSettingsPanel*>());
    const QList<ZelPageHelp*> pages = drawer->findChildren<ZelPageHelp*>();
    for (ZelPageHelp* page : pages) {
        connect(page, SIGNAL(reached(QWidget*)), m_rest, SLOT(onReached(QWidget*)));
        connect(page, SIGNAL(edited()), this, SLOT(onEdited()));
        connect(page, SIGNAL(helpRequested(QWidget*)), this, SLOT(showHelp(QWidget*)));
        m_pages << page;
    }
    place();
}

void ZelHelpArea::useColumn(QWidget* column, QWidget* above)
{
    m_above = above;
    m_columnHost = new QWidget(column);
    m_columnLayout = newLayout(m_columnHost, ColumnMargin);
    m_columnHost->hide();
    column->installEventFilter(this);
    above->installEventFilter(this);
    installEventFilter(this);
    place();
}

bool ZelHelpArea::eventFilter(QObject* watched, QEvent* event)
{
    const QEvent::Type type = event->type();
    if (!m_help)
        return false;
    if (watched == m_cardArea) {
        if (type == QEvent::Resize)
            reserveHeight();
        return false;
    }
    // Queued, because the layout of the column is still at work.
    if (watched != this &&
        (type == QEvent::Resize || type == QEvent::Move || type == QEvent::Show || type == QEvent::Hide))
        QMetaObject::invokeMethod(this, "place", Qt::QueuedConnection);
    // It takes some milliseconds, which neither the first frame has nor the first one of a slide.
    if (type == QEvent::Paint && m_columnHost && m_columnLayout->indexOf(m_help) < 0 &&
        roomOf(*this) < MinimumWidth)
        QMetaObject::invokeMethod(this, "moveToColumn", Qt::QueuedConnection);
    return false;
}

void ZelHelpArea::setField(QWidget* field)
{
    m_rest->stop();
    if (!m_help)
        return;
    if (field != m_card->field())
        m_cardArea->verticalScrollBar()->setValue(0); // Name and buttons stand where they were.
    m_card->setField(field);
}

void ZelHelpArea::showHelp(QWidget* field)
{
    if (!m_help)
        return;
    setField(field);
    const bool isWhole = m_help->isVisible() && m_cardArea->isVisible() &&
                         m_card->neededHeight(m_card->width()) <= m_cardArea->viewport()->height();
    if (field && !isWhole)
        openAt(*field);
}

void ZelHelpArea::onHelpRequested()
{
    showHelp(QApplication::focusWidget());
}

void ZelHelpArea::refresh()
{
    if (!m_help)
        return;
    m_card->refresh();
    m_pending->refresh();
    reserveHeight();
}

void ZelHelpArea::onLanguageChanged()
{
    m_reservedWidth = -1;
    refresh();
}

void ZelHelpArea::onEdited()
{
    if (!m_help)
        return;
    m_card->refresh();
    m_pending->onEdited();
    reserveHeight();
}

void ZelHelpArea::resizeEvent(QResizeEvent* event)
{
    QWidget::resizeEvent(event);
    place();
}

void ZelHelpArea::onFocusChanged(QWidget*, QWidget* current)
{
    if (ZelPageHelp::HelpOn(current))
        setField(current);
}

void ZelHelpArea::place()
{
    if (!m_help)
        return;
    const bool beside = roomOf(*this) >= MinimumWidth;
    const int height = beside ? 0 : freeHeightOfColumn();
    const bool inColumn = height >= MinimumListHeight;
    if (m_columnHost && inColumn) {
        // A column that slides clips what is in it.
        m_columnHost->setGeometry(0, m_columnHost->parentWidget()->height() - height, m_above->width(),
                                  height);
    }
    if (beside)
        put(m_areaLayout, false);
    const bool hasHelp = beside || height >= MinimumHeight;
    m_cardArea->setVisible(hasHelp);
    m_pending->setCompact(inColumn && hasHelp);
    m_help->setVisible(beside || (inColumn && m_columnLayout->indexOf(m_help) >= 0));
    if (m_columnHost)
        m_columnHost->setVisible(inColumn);
    for (const QPointer<ZelPageHelp>& page : m_pages)
        if (page)
            page->setHelpAreaVisible(hasHelp);
}

void ZelHelpArea::moveToColumn()
{
    if (!m_columnHost || roomOf(*this) >= MinimumWidth)
        return;
    put(m_columnLayout, true);
    place();
}

void ZelHelpArea::put(QBoxLayout* layout, bool compact)
{
    if (layout->indexOf(m_help) < 0)
        layout->addWidget(m_help);
    m_card->setCompact(compact);
}

void ZelHelpArea::reserveHeight()
{
    const int width = m_pending->isHidden() ? 0 : m_cardArea->width();
    if (width == m_reservedWidth)
        return;
    m_reservedWidth = width;
    // Beside a scroll bar, which would keep itself: a text may need another line because of it.
    const int textWidth = width - m_cardArea->verticalScrollBar()->sizeHint().width();
    m_cardArea->setMaximumHeight(width ? m_card->heightOfLongest(m_pages, textWidth) : QWIDGETSIZE_MAX);
}

int ZelHelpArea::freeHeightOfColumn() const
{
    if (!m_columnHost || !m_above || !m_above->isVisible())
        return 0;
    QWidget* column = m_columnHost->parentWidget();
    return column->height() - m_above->mapTo(column, QPoint(0, m_above->height())).y();
}

void ZelHelpArea::openAt(QWidget& field)
{
    const QObject* page = nullptr;
    for (const QPointer<ZelPageHelp>& each : m_pages)
        if (each && each->setting(&field))
            page = each->parent();
    auto* opened = new OpenedHelp(field, page, this);
    opened->show();
    opened->setFocus();
}

} // namespace zel
