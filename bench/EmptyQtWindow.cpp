// The reference for start-up and memory: a minimal Qt program with a window.
#include <QApplication>
#include <QWidget>

int main(int argc, char* argv[])
{
    QApplication application(argc, argv);
    QWidget window;
    window.resize(720, 560);
    window.show();
    return QApplication::exec();
}
