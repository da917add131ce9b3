#include "QtSingleApplication.h"

#include "LocalPeer.h"

#include <QFileInfo>
#include <QWidget>

// The flag exists only because the genuine library has it.
QtSingleApplication::QtSingleApplication(int& argc, char** argv, bool)
    : QApplication(argc, argv)
{
    const QString executable = applicationFilePath();
    const QString canonical = QFileInfo(executable).canonicalFilePath();
    connectPeer(canonical.isEmpty() ? executable : canonical);
}

QtSingleApplication::QtSingleApplication(const QString& id, int& argc, char** argv)
    : QApplication(argc, argv)
{
    connectPeer(id);
}

QtSingleApplication::~QtSingleApplication() = default;

bool QtSingleApplication::isRunning()
{
    return m_peer->isClient();
}

QString QtSingleApplication::id() const
{
    return m_peer->id();
}

void QtSingleApplication::setActivationWindow(QWidget* window, bool activateOnMessage)
{
    m_activationWindow = window;
    disconnect(m_peer.get(), SIGNAL(messageReceived(QString)), this, SLOT(activateWindow()));
    if (activateOnMessage)
        connect(m_peer.get(), SIGNAL(messageReceived(QString)), this, SLOT(activateWindow()));
}

QWidget* QtSingleApplication::activationWindow() const
{
    return m_activationWindow;
}

bool QtSingleApplication::sendMessage(const QString& message, int timeout)
{
    return m_peer->sendMessage(message, timeout);
}

void QtSingleApplication::activateWindow()
{
    if (!m_activationWindow)
        return;
    m_activationWindow->setWindowState(m_activationWindow->windowState() & ~Qt::WindowMinimized);
    m_activationWindow->show();
    m_activationWindow->raise();
    m_activationWindow->activateWindow();
}

void QtSingleApplication::connectPeer(const QString& id)
{
    m_peer = std::make_unique<LocalPeer>(id);
    connect(m_peer.get(), SIGNAL(messageReceived(QString)), this, SIGNAL(messageReceived(QString)));
}
