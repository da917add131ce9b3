// The baseline of a start: Qt and an empty window.
//   empty_window [PLUGINS]    the folder of Qt's plug-ins; Qt's own unless given

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
