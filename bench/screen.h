// A screen of 1920 x 1080 without a display.
#pragma once

#include <QFile>
#include <QTemporaryFile>

namespace vernacle::bench {

class FullHdScreen {
public:
    FullHdScreen() {
        file_.open();
        file_.write(R"({"screens":[{"name":"bench","x":0,"y":0,"width":1920,"height":1080,)"
                    R"("logicalDpi":96,"logicalBaseDpi":96,"dpr":1}],"windowFrameMargins":false})");
        file_.flush();
        qputenv("QT_QPA_PLATFORM", "offscreen:configfile=" + QFile::encodeName(file_.fileName()));
    }

private:
    QTemporaryFile file_;
};

} // namespace vernacle::bench
