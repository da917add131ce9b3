#include "OpenedHelp.h"

#include "HelpCard.h"
#include "ReturnKey.h"

#include <QApplication>
#include <QDesktopWidget>
#include <QVBoxLayout>

namespace zel {

namespace {

// In pixels.
const int Width = 340;
const int Border = 1; // as in the style sheet
const int Distance = 2;

} // namespace

OpenedHelp::OpenedHelp(QWidget& field, const QObject* page, QWidget* parent)
    : QFrame(parent, Qt::Popup)
{
    setAttribute(Qt::WA_DeleteOnClose);
    setObjectName("openedHelp");
    // Of another colour behind the round corners of the card.
    setStyleSheet("#openedHelp { background: rgb(237,237,237); border: 1px solid rgb(69,68,229); }");
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    auto* card = new HelpCard(this);
    layout->addWidget(card);
    card->setField(&field);
    new ReturnKey(this);
    if (page)
        connect(page, SIGNAL(stateChanged()), card, SLOT(refresh()));
    ensurePolished();
    setFixedSize(Width, card->neededHeight(Width - 2 * Border) + 2 * Border);
    moveBeside(field);
}

void OpenedHelp::moveBeside(const QWidget& field)
{
    const QRect screen = QApplication::desktop()->availableGeometry(&field);
    const QPoint below = field.mapToGlobal(QPoint(0, field.height() + Distance));
    const QPoint above = field.mapToGlobal(QPoint(0, -height() - Distance));
    const QPoint place = below.y() + height() > screen.bottom() ? above : below;
    move(qBound(screen.left(), place.x(), qMax(screen.left(), screen.right() - width())),
         qMax(screen.top(), place.y()));
}

} // namespace zel
