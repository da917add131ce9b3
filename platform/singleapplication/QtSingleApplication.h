#ifndef ZEL_QTSINGLEAPPLICATION_H
#define ZEL_QTSINGLEAPPLICATION_H

#include <QApplication>
#include <QPointer>
#include <QString>

#include <memory>

class LocalPeer;

/// The application object of a program that runs once per user: the first process is the running instance,
/// later ones send it a message and end. A genuine single-instance library can replace this class.
class QtSingleApplication : public QApplication
{
    Q_OBJECT

public:
    /// Uses the path of the executable as id.
    QtSingleApplication(int& argc, char** argv, bool guiEnabled = true);
    /// Processes with the same id belong to the same program.
    QtSingleApplication(const QString& id, int& argc, char** argv);
    ~QtSingleApplication() override;

    /// True when another process is the running instance. Otherwise this process becomes it.
    bool isRunning();
    QString id() const;

    /// The window that activateWindow() raises, and whether each arriving message does so too. Not owned.
    void setActivationWindow(QWidget* window, bool activateOnMessage = true);
    QWidget* activationWindow() const;

public Q_SLOTS:
    /// Sends a message to the running instance. False when this process is the instance, when the message is
    /// too long, or when the instance does not take it within the timeout, in milliseconds.
    bool sendMessage(const QString& message, int timeout = 5000);

    /// Restores, raises and focuses the activation window, if there is one.
    void activateWindow();

Q_SIGNALS:
    /// Another process has sent a message to this instance.
    void messageReceived(const QString& message);

private:
    void connectPeer(const QString& id);

    std::unique_ptr<LocalPeer> m_peer;
    QPointer<QWidget> m_activationWindow;
};

#endif
