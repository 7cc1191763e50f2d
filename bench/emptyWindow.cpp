#include <QApplication>
#include <QMainWindow>

// The least that a window program of this toolkit can be: what bench/start.sh compares with.
int main(int argc, char* argv[])
{
    QApplication application(argc, argv);
    QMainWindow window;
    window.resize(1100, 700);
    window.show();
    return QApplication::exec();
}
