#include "PageButtons.h"

#include "PageList.h"
#include "ZelSettingsPanel.h"

#include <QBoxLayout>
#include <QButtonGroup>
#include <QCoreApplication>
#include <QIcon>
#include <QKeyEvent>
#include <QPointer>

namespace zel {

namespace {

/// Null when the page has no field that takes the focus.
QWidget* firstField(QWidget& page)
{
    for (QWidget* widget = page.nextInFocusChain(); widget != &page; widget = widget->nextInFocusChain())
        if (page.isAncestorOf(widget) && (widget->focusPolicy() & Qt::TabFocus) && widget->isEnabled() &&
            widget->isVisible() && !widget->focusProxy())
            return widget;
    return nullptr;
}

/// Without pending edits a transparent icon takes the same space.
void markButton(QPushButton& button, bool pending)
{
    const QString tip = pending ? QCoreApplication::translate("ZelControlCenter",
                                                              "This page has changes that are not applied.")
                                : QCoreApplication::translate("ZelControlCenter", "Shows this page.");
    if (button.toolTip() == tip)
        return;
    button.setIcon(QIcon(pending ? ":/controlCenter/controlCenter/pending.png"
                                 : ":/controlCenter/controlCenter/pendingNone.png"));
    button.setToolTip(tip);
    button.setAccessibleDescription(tip);
}

} // namespace

PageButtons::PageButtons(QBoxLayout* layout, const QList<QWidget*>& successors, QObject* parent)
    : QObject(parent)
    , m_layout(layout)
    , m_successors(successors)
    , m_group(new QButtonGroup(this))
{
    connect(m_group, SIGNAL(buttonClicked(QAbstractButton*)), this, SLOT(onClicked(QAbstractButton*)));
}

void PageButtons::add(ZelSettingsPanel* page)
{
    QPushButton* button = page->getActionWidget();
    if (!button)
        return;
    m_layout->addWidget(button);
    if (m_layout->parentWidget()->isHidden())
        m_layout->parentWidget()->show();
    // The Tab key visits the column from top to bottom before the pages.
    QWidget* last = m_group->buttons().isEmpty() ? nullptr : m_group->buttons().last();
    if (last)
        QWidget::setTabOrder(last, button);
    else
        for (QWidget* successor : m_successors) {
            QWidget::setTabOrder(last ? last : button, successor);
            last = successor;
        }
    m_group->addButton(button);
    m_pages.insert(button, page);
    button->installEventFilter(this);
}

void PageButtons::remove(ZelSettingsPanel* page)
{
    QPushButton* button = page->getActionWidget();
    if (!button)
        return;
    button->removeEventFilter(this);
    m_pages.remove(button);
    m_group->removeButton(button);
    button->setParent(nullptr);
}

QWidget* PageButtons::checkedButton() const
{
    return m_group->checkedButton();
}

bool PageButtons::mark(const PageList& pages)
{
    bool any = false;
    pages.forEach([&](ZelSettingsPanel* page) {
        const QPointer<QPushButton> button = page->getActionWidget();
        const bool pending = page->hasModifications();
        if (button)
            markButton(*button, pending);
        any = any || pending;
    });
    return any;
}

bool PageButtons::eventFilter(QObject* watched, QEvent* event)
{
    if (watched != m_chosen)
        return false;
    if (event->type() == QEvent::FocusOut)
        m_chosen = nullptr;
    if (event->type() != QEvent::KeyPress || static_cast<QKeyEvent*>(event)->key() != Qt::Key_Tab)
        return false;
    QWidget* field = firstField(*m_pages.value(watched));
    if (field)
        field->setFocus(Qt::TabFocusReason);
    return field;
}

void PageButtons::onClicked(QAbstractButton* button)
{
    m_chosen = button->hasFocus() ? button : nullptr;
    Q_EMIT chosen(m_pages.value(button)->getPanelName());
}

} // namespace zel
