// The measure for the program's start: a bare window of the toolkit up to its first paint.
#include <QApplication>
#include <QWidget>

#include "firstpaint.h"
#include "screen.h"

int main(int argc, char** argv) {
    using namespace vernacle::bench;
    const FullHdScreen screen;
    QApplication application(argc, argv);
    EndAtFirstPaint end;
    application.installEventFilter(&end);
    QWidget window;
    window.showMaximized();
    return QApplication::exec();
}
