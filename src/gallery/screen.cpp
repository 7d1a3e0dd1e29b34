#include "gallery/screen.h"

#include <stdexcept>

#include <QApplication>
#include <QDir>
#include <QFont>
#include <QPalette>
#include <QTemporaryFile>

#include "gallery/arguments.h"

namespace vernacle::gallery {

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

// Light on dark; what is disabled stands between the two.
QPalette DarkColours() {
    QPalette colours(QColor(0x30, 0x30, 0x30), QColor(0x28, 0x28, 0x28));
    const QColor faded(0x80, 0x80, 0x80);
    for (const auto role : {QPalette::WindowText, QPalette::ButtonText, QPalette::Text}) {
        colours.setColor(QPalette::All, role, QColor(0xE8, 0xE8, 0xE8));
        colours.setColor(QPalette::Disabled, role, faded);
    }
    colours.setColor(QPalette::Base, QColor(0x20, 0x20, 0x20));
    colours.setColor(QPalette::Link, QColor(0x70, 0xB0, 0xFF));
    return colours;
}

} // namespace

void UseLookOf(const Arguments& arguments) {
    if (arguments.dark) {
        QApplication::setPalette(DarkColours());
    }
    if (arguments.fontPoints > 0) {
        QFont font = QApplication::font();
        font.setPointSizeF(arguments.fontPoints);
        QApplication::setFont(font);
    }
}

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

} // namespace vernacle::gallery
