// The baseline of a start: an empty Qt window.
//   empty_window [PLUGINS]    loads the plug-ins of that folder instead of all of Qt's

#include <QApplication>
#include <QWidget>

int main(int argc, char** argv)
{
    if (argc > 1)
        QCoreApplication::setLibraryPaths({argv[1]});
    QApplication application(argc, argv);
    QWidget window(nullptr, Qt::FramelessWindowHint);
    window.resize(800, 600);
    window.show();
    return QApplication::exec();
}
