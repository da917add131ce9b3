// A program that runs once. It tells which part it plays; then the instance shows the messages that it gets,
// and a client sends what is on its standard input.
//   single_instance <time-out of sending in milliseconds>

#include "QtSingleApplication.h"

#include <QFile>
#include <QTextStream>
#include <QTimer>

int main(int argc, char** argv)
{
    QtSingleApplication application(argc, argv);
    QFile input;
    QTextStream output(stdout);
    if (application.isRunning()) {
        output << "client" << Qt::endl;
        if (argc < 2 || !input.open(stdin, QIODevice::ReadOnly))
            return 1;
        const bool sent = application.sendMessage(input.readAll(), QByteArray(argv[1]).toInt());
        output << (sent ? "sent" : "failed") << Qt::endl;
        return 0;
    }
    QObject::connect(&application, &QtSingleApplication::messageReceived,
                     [&](const QString& message) { output << message.toUtf8().toHex() << Qt::endl; });
    output << (application.sendMessage("", 1000) ? "client of itself" : "instance") << Qt::endl;
    QTimer::singleShot(120000, &application, SLOT(quit())); // It does not outlive a test that broke down.
    return application.exec();
}
