// The reference for a second launch: a Qt program that starts and ends.
#include <QApplication>

int main(int argc, char* argv[])
{
    const QApplication application(argc, argv);
    return 0;
}
