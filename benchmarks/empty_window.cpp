// The baseline of a start: an empty Qt window.
//   empty_window [PLUGINS [--first-frame]]
// Loads the plug-ins of that folder instead of all of Qt's, and ends after the first frame.

#include <QApplication>
#include <QWidget>

#include <cstdlib>

struct Window : QWidget
{
    using QWidget::QWidget;

    void paintEvent(QPaintEvent*) override
    {
        if (QApplication::arguments().contains("--first-frame"))
            std::quick_exit(0);
    }
};

int main(int argc, char** argv)
{
    if (argc > 1)
        QCoreApplication::setLibraryPaths({argv[1]});
    QApplication application(argc, argv);
    Window window(nullptr, Qt::FramelessWindowHint);
    window.resize(800, 600);
    window.show();
    return QApplication::exec();
}
