// The main program of the forms' tests: one screen of 1920 x 1080 without a display.
#include <QApplication>
#include <QFile>
#include <QTemporaryFile>

#include <gtest/gtest.h>

int main(int argc, char** argv) {
    ::testing::InitGoogleTest(&argc, argv);
    QTemporaryFile screen;
    screen.open();
    screen.write(R"({"screens":[{"name":"test","x":0,"y":0,"width":1920,"height":1080,)"
                 R"("logicalDpi":96,"logicalBaseDpi":96,"dpr":1}],"windowFrameMargins":false})");
    screen.flush();
    qputenv("CUPS_SERVER", "/nonexistent"); // no test prints on the machine's own queues
    qputenv("QT_QPA_PLATFORM", "offscreen:configfile=" + QFile::encodeName(screen.fileName()));
    const QApplication application(argc, argv);
    QApplication::setQuitOnLastWindowClosed(false);
    return RUN_ALL_TESTS();
}
