// The reference for a second launch: the least that a Qt program does which starts its toolkit and leaves again.
#include <QApplication>

int main(int argc, char* argv[])
{
    const QApplication application(argc, argv);
    return 0;
}
