// A program that runs once. It is "ready" first, and when its standard input ends, it tells which part it
// plays: the instance shows the messages that it gets, a client sends what was on its standard input.
//   single_instance <time-out of sending in milliseconds>

#include "QtSingleApplication.h"

#include <QtCore>

#if defined(_WIN32)
#    include <fcntl.h>
#    include <io.h>
#endif

static void tell(const QByteArray& line)
{
    puts(line.constData());
    fflush(stdout);
}

class Listener : public QObject
{
    Q_OBJECT

public Q_SLOTS:
    void hear(const QString& message) { tell(message.toUtf8().toHex()); }
};

int main(int argc, char** argv)
{
#if defined(_WIN32)
    _setmode(_fileno(stdin), _O_BINARY);
#endif
    QtSingleApplication application(argc, argv);
    QFile input;
    tell("ready");
    if (argc < 2 || !input.open(stdin, QIODevice::ReadOnly))
        return 2;
    const QByteArray bytes = input.readAll();
    const QString text = QString::fromUtf8(bytes.constData(), bytes.size());
    if (application.isRunning()) {
        tell("client");
        const bool sent = application.sendMessage(text, QByteArray(argv[1]).toInt());
        tell(sent ? "sent" : "failed");
        return sent ? 0 : 1;
    }
    Listener listener;
    QObject::connect(&application, SIGNAL(messageReceived(QString)), &listener, SLOT(hear(QString)));
    tell(application.sendMessage("", 1000) ? "client of itself" : "instance");
    QTimer::singleShot(120000, &application, SLOT(quit())); // After a test that crashed.
    return application.exec();
}

#include "single_instance.moc"
