#include "WindowGeometry.h"

#include "base/SmallFile.h"

#include <QApplication>
#include <QDesktopWidget>
#include <QEvent>
#include <QRegExp>
#include <QStringList>
#include <QWidget>

namespace zel {

namespace {

const int SizeLimit = 200; // bytes
const int BaseSize = 8;    // pixels; a whole number of steps at the usual scales

/// What the file holds, as one line of nine numbers.
struct Place
{
    QRect desktop; ///< The bounding rectangle of all screens.
    QRect geometry;
    bool maximized;
};

QString textOf(const QRect& rect)
{
    return QString("%1 %2 %3 %4").arg(rect.x()).arg(rect.y()).arg(rect.width()).arg(rect.height());
}

QRect rectOf(const QStringList& numbers)
{
    return QRect(numbers[0].toInt(), numbers[1].toInt(), numbers[2].toInt(), numbers[3].toInt());
}

QByteArray format(const Place& place)
{
    return QString("%1 %2 %3\n")
        .arg(textOf(place.desktop), textOf(place.geometry), QString::number(place.maximized))
        .toLatin1();
}

/// With an invalid geometry if the text has another format.
Place parse(const QByteArray& text)
{
    const QRegExp format("(-?\\d{1,6} ){8}[01]\n");
    const QString line = QString::fromLatin1(text.constData(), text.size());
    if (!format.exactMatch(line))
        return Place();
    const QStringList numbers = line.trimmed().split(' ');
    return {rectOf(numbers), rectOf(numbers.mid(4)), numbers.last() == "1"};
}

} // namespace

WindowGeometry::WindowGeometry(QWidget* window, const QSize& minimumSize, const QString& file)
    : QObject(window)
    , m_window(window)
    , m_minimumSize(minimumSize)
    , m_file(file)
{
    for (const char* change :
         {SIGNAL(resized(int)), SIGNAL(workAreaResized(int)), SIGNAL(screenCountChanged(int))})
        connect(QApplication::desktop(), change, this, SLOT(fitToScreen()));
    window->installEventFilter(this);
}

void WindowGeometry::restore()
{
    const QSize preferred = m_window->size();
    fitToScreen();
    // On a screen that is too small, the window system fills it to the pixel, also at a fractional scale.
    bool maximized = m_window->size() != preferred;
    const Place place = parse(contentOfSmallFile(m_file, SizeLimit));
    if (place.geometry.isValid() && place.desktop == QApplication::desktop()->geometry()) {
        m_window->setGeometry(place.geometry);
        fitToScreen();
        maximized = place.maximized;
    }
    if (maximized)
        m_window->setWindowState(m_window->windowState() | Qt::WindowMaximized);
}

void WindowGeometry::save() const
{
    const Place place = {QApplication::desktop()->geometry(), m_window->normalGeometry(),
                         m_window->isMaximized()};
    replaceSmallFile(m_file, format(place));
}

bool WindowGeometry::eventFilter(QObject*, QEvent* event)
{
    const QEvent::Type type = event->type();
    if (type == QEvent::Show || type == QEvent::Paint)
        m_isBeingPlaced = type == QEvent::Show;
    // At a fractional scale, X11 lets a window grow by whole steps, such as 2 pixels at 1.5, from a base
    // size. That of Qt is odd then, which would shrink the window by a pixel.
    if (type == QEvent::Show)
        m_window->setBaseSize(BaseSize, BaseSize);
    // A window that was maximised while its screen went away is restored to where that screen was, and a new
    // one may be put where a part of it cannot be seen. Queued, because the window is still being moved.
    if (type == QEvent::Move &&
        (m_isBeingPlaced ||
         !QApplication::desktop()->screenGeometry(m_window).intersects(m_window->geometry())))
        QMetaObject::invokeMethod(this, "fitToScreen", Qt::QueuedConnection);
    return false;
}

void WindowGeometry::fitToScreen()
{
    const QRect area = QApplication::desktop()->availableGeometry(m_window);
    // A pixel less, because a fractional scale may have rounded the area up.
    m_window->setMinimumSize(m_minimumSize.boundedTo(area.size() - QSize(1, 1)));
    if (m_window->isMaximized() || m_window->isFullScreen())
        return;
    const QSize size = m_window->size().boundedTo(area.size());
    m_window->resize(size);
    // Before a window without a position is shown, the window manager chooses one.
    if (m_window->isVisible() || m_window->testAttribute(Qt::WA_Moved))
        m_window->move(qBound(area.left(), m_window->x(), area.right() - size.width() + 1),
                       qBound(area.top(), m_window->y(), area.bottom() - size.height() + 1));
}

} // namespace zel
