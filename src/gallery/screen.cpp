#include "gallery/screen.h"

#include <stdexcept>

#include <QDir>
#include <QTemporaryFile>

#include "gallery/arguments.h"

namespace vernacle {

namespace {

constexpr const char* kPlatform = "QT_QPA_PLATFORM";
constexpr const char* kOffscreen = "offscreen";

// What the offscreen platform reads; sizes are counted before the device ratio.
QByteArray Configuration(const Arguments& arguments) {
    const auto logical = [&](int pixels) {
        return QByteArray::number(qRound(pixels / arguments.deviceRatio));
    };
    return "{\"screens\":[{\"name\":\"gallery\",\"x\":0,\"y\":0,\"width\":" +
           logical(arguments.widthPixels) + ",\"height\":" + logical(arguments.heightPixels) +
           ",\"logicalDpi\":96,\"logicalBaseDpi\":96,\"dpr\":" +
           QByteArray::number(arguments.deviceRatio) + "}],\"windowFrameMargins\":false}";
}

} // namespace

void UseScreenOf(const Arguments& arguments) {
    const QByteArray named = qgetenv(kPlatform);
    if (!named.isEmpty() && named != kOffscreen) {
        return;
    }
    static QTemporaryFile file; // read when the application starts, removed when it ends
    if (!file.open() || file.write(Configuration(arguments)) < 0 || !file.flush()) {
        throw std::runtime_error("the screen's description could not be written: " +
                                 file.errorString().toStdString());
    }
    qputenv(kPlatform,
            QByteArray(kOffscreen) + ":configfile=" + QFile::encodeName(file.fileName()));
}

} // namespace vernacle
