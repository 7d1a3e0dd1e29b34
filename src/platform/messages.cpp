#include "platform/messages.h"

#include <QApplication>
#include <QMessageBox>

namespace vernacle {

namespace {

void ShowBox(const char* name, QMessageBox::Icon icon, const QString& title,
             const std::string& text) {
    QMessageBox box(icon, title, QString::fromStdString(text), QMessageBox::Ok,
                    QApplication::activeWindow());
    box.setObjectName(QLatin1String(name));
    box.setTextFormat(Qt::PlainText); // file names may hold what looks like markup
    box.exec();
}

} // namespace

void ShowFailure(const std::string& text) {
    ShowBox("boxFailure", QMessageBox::Warning, QStringLiteral("Vernacle"), text);
}

void ShowInformation(const std::string& text) {
    ShowBox("boxInformation", QMessageBox::Information, QStringLiteral("Vernacle"), text);
}

void ShowRunTimeError(const std::string& text) {
    ShowBox("boxRunTimeError", QMessageBox::Critical, QStringLiteral("Vernacle - Run-time error"),
            "Run-time error:\n\n" + text + "\n\nThe program ends now.");
}

void Beep() {
    QApplication::beep();
}

} // namespace vernacle
