// The baseline of a start: the toolkit, and a window with nothing in it.
//   empty_window [PLUGINS]    the folder of the toolkit's plug-ins, where the toolkit itself has them unless
//   given

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
