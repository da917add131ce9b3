#include "MenuColumn.h"

#include "LanguageFollower.h"
#include "MenuSeparator.h"
#include "ZelCCActionItem.h"

#include "platform/zelAction.h"

#include <QBoxLayout>
#include <QColor>
#include <QCoreApplication>
#include <QPushButton>

#include <algorithm>

namespace zel {

namespace {

const int SeparatorMargin = 18; // pixels

} // namespace

MenuColumn::MenuColumn(QWidget* owner, QFrame* frame)
    : m_owner(owner)
    , m_frame(frame)
    , m_layout(static_cast<QBoxLayout*>(frame->layout()))
    , m_settingsAction(new zelAction("Settings", QString(), nullptr))
{
    m_layout->setAlignment(Qt::AlignTop);
    setTexts();
    new LanguageFollower(frame, [this] { setTexts(); });
    // It opens the settings inside the menu, so it does not close the menu.
    addAction(m_settingsAction.get(), QString(), false, false, false);
    QObject::connect(m_settingsAction.get(), SIGNAL(triggered()), owner, SLOT(openSettings()));
}

MenuColumn::~MenuColumn()
{
    removeAction(m_settingsAction.get());
}

void MenuColumn::setTexts()
{
    m_settingsAction->setText(QCoreApplication::translate("ZelControlCenter", "Settings"));
    m_settingsAction->setStatusTip(
        QCoreApplication::translate("ZelControlCenter", "Changes the settings of the application"));
}

void MenuColumn::setVisible(bool visible)
{
    m_frame->setVisible(visible);
}

void MenuColumn::giveSpace(bool given)
{
    m_frame->setMaximumHeight(given ? QWIDGETSIZE_MAX : 0);
    static_cast<QBoxLayout*>(m_frame->parentWidget()->layout())->setStretchFactor(m_frame, given ? 1 : 0);
}

void MenuColumn::setColor(const QColor& color)
{
    m_frame->setStyleSheet(QString("#actionFrame{ background-color:rgb(%1,%2,%3);}")
                               .arg(color.red())
                               .arg(color.green())
                               .arg(color.blue()));
}

void MenuColumn::addAction(zelAction* action, const QString& anchorName, bool isWorkflowSpecific, bool after,
                           bool closesMenu)
{
    auto* item = new ZelCCActionItem(action, m_owner, Qt::WindowFlags());
    item->setIsWorkflowSpecific(isWorkflowSpecific);
    if (closesMenu)
        QObject::connect(action, SIGNAL(triggered()), m_owner, SLOT(closeMenu()), Qt::UniqueConnection);
    m_items.append(item);

    const int anchor = anchorIndex(anchorName);
    const bool besideAnchor = !anchorName.isEmpty() && anchor >= 0;
    m_layout->insertWidget(besideAnchor && after ? anchor + 1 : anchor, item);
    if (!besideAnchor)
        m_owner->layout()->invalidate();
    orderFocus(item);
}

void MenuColumn::removeAction(zelAction* action)
{
    const auto items = m_items;
    for (ZelCCActionItem* item : items) {
        if (item->getZelAction() != action)
            continue;
        QObject::disconnect(action, SIGNAL(triggered()), m_owner, SLOT(closeMenu()));
        m_items.removeOne(item);
        delete item;
    }
}

bool MenuColumn::addSeparator(const QString& anchorName, const QString& separatorName)
{
    if (m_separators.contains(separatorName))
        return false;
    auto* separator = new MenuSeparator(m_owner);
    separator->setFixedSize(std::max(m_owner->width() - SeparatorMargin, 0), 1);
    m_separators.insert(separatorName, separator);
    m_layout->insertWidget(anchorIndex(anchorName), separator);
    return true;
}

bool MenuColumn::setSeparatorVisible(const QString& separatorName, bool visible)
{
    QFrame* separator = m_separators.value(separatorName);
    if (!separator)
        return false;
    separator->setVisible(visible);
    return true;
}

int MenuColumn::anchorIndex(const QString& anchorName) const
{
    if (anchorName.isEmpty())
        return 0;
    for (int index = 0; index < m_layout->count(); ++index) {
        const auto* item = qobject_cast<ZelCCActionItem*>(m_layout->itemAt(index)->widget());
        if (item && item->getZelAction() && item->getZelAction()->getActionName() == anchorName)
            return index;
    }
    return -1;
}

void MenuColumn::orderFocus(ZelCCActionItem* added) const
{
    const auto buttonAt = [this](int index) -> QWidget* {
        const auto* item = qobject_cast<ZelCCActionItem*>(m_layout->itemAt(index)->widget());
        return item ? item->findChild<QPushButton*>() : nullptr;
    };
    const int place = m_layout->indexOf(added);
    QWidget* const button = buttonAt(place);
    for (int index = place - 1; index >= 0; --index) {
        if (QWidget* above = buttonAt(index)) {
            QWidget::setTabOrder(above, button);
            return;
        }
    }
    for (int index = place + 1; index < m_layout->count(); ++index) {
        if (QWidget* below = buttonAt(index)) {
            // Takes the place of the one below, which then follows.
            QWidget::setTabOrder(below, button);
            QWidget::setTabOrder(button, below);
            return;
        }
    }
}

} // namespace zel
