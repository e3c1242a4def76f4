// The yardstick of the program's start: a window of the same size with nothing in it, in the same toolkit.

#include <QApplication>
#include <QWidget>

int main(int argc, char** argv) {
    const QApplication application(argc, argv);
    QWidget window;
    window.setObjectName(u"Form1"_qs);
    window.resize(800, 600);
    window.show();
    return QApplication::exec();
}
