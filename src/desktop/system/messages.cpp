#include "desktop/system/messages.h"

#include <QApplication>
#include <QLabel>
#include <QMessageBox>

namespace vernacle {

namespace {

void ShowBox(const char* name, QMessageBox::Icon icon, const QString& title,
             const std::string& text, const std::string& reason = {}) {
    QMessageBox box(icon, title, QString::fromStdString(text), QMessageBox::Ok,
                    QApplication::activeWindow());
    box.setObjectName(QLatin1String(name));
    box.setTextFormat(Qt::PlainText); // file names may hold what looks like markup
    if (!reason.empty()) {
        box.setInformativeText(QString::fromStdString(reason));
        box.findChild<QLabel*>(QStringLiteral("qt_msgbox_informativelabel"))
            ->setTextFormat(Qt::PlainText); // which the box sets for its text alone
    }
    box.exec();
}

} // namespace

void ShowFailure(const FailureReport& report) {
    ShowBox("boxFailure", QMessageBox::Warning, QStringLiteral("Vernacle"), report.text,
            report.reason);
}

void ShowInformation(const std::string& text) {
    ShowBox("boxInformation", QMessageBox::Information, QStringLiteral("Vernacle"), text);
}

bool AskToGoOn(const std::string& text) {
    QMessageBox box(QMessageBox::Information, QStringLiteral("Vernacle"),
                    QString::fromStdString(text), QMessageBox::Ok | QMessageBox::Cancel,
                    QApplication::activeWindow());
    box.setObjectName(QStringLiteral("boxGoOn"));
    box.setTextFormat(Qt::PlainText);
    return box.exec() == QMessageBox::Ok;
}

void ShowRunTimeError(const std::string& text) {
    ShowBox("boxRunTimeError", QMessageBox::Critical, QStringLiteral("Vernacle - Run-time error"),
            "Run-time error:\n\n" + text + "\n\nThe program ends now.");
}

Leaving AskAboutChanges(const std::string& text) {
    QMessageBox box(QMessageBox::Question, QStringLiteral("Vernacle"), QString::fromStdString(text),
                    QMessageBox::Save | QMessageBox::Discard | QMessageBox::Cancel,
                    QApplication::activeWindow());
    box.setObjectName(QStringLiteral("boxChanges"));
    box.setTextFormat(Qt::PlainText);
    box.setDefaultButton(QMessageBox::Save);
    switch (box.exec()) {
    case QMessageBox::Save:
        return Leaving::Save;
    case QMessageBox::Discard:
        return Leaving::Discard;
    default:
        return Leaving::Stay;
    }
}

void Beep() {
    QApplication::beep();
}

} // namespace vernacle
