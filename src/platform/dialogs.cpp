#include "platform/dialogs.h"

#include <QColorDialog>
#include <QFileDialog>
#include <QFontDialog>

#include "surfaces/colours.h"

namespace vernacle {

namespace {

// The dialog shows the description alone, and hides the patterns that it finds at its end.
void SetFilter(QFileDialog& dialog, const char* filter) {
    const QStringList parts = QString::fromUtf8(filter).split(QLatin1Char('|'));
    QString patterns = parts.last();
    patterns.replace(QLatin1Char(';'), QLatin1Char(' '));
    dialog.setOption(QFileDialog::HideNameFilterDetails);
    dialog.setNameFilter(parts.first() + QStringLiteral(" (%1)").arg(patterns));
}

void Prepare(QFileDialog& dialog, const char* name, const FileQuestion& question) {
    dialog.setObjectName(QLatin1String(name));
    SetFilter(dialog, question.filter);
    dialog.setDefaultSuffix(QLatin1String(question.ending));
}

std::string Chosen(const QFileDialog& dialog) {
    return dialog.selectedFiles().value(0).toStdString();
}

} // namespace

std::string AskForFileToOpen(QWidget* parent, const FileQuestion& question) {
    QFileDialog dialog(parent, QString::fromUtf8(question.title));
    Prepare(dialog, "dlgOpen", question);
    dialog.setFileMode(QFileDialog::AnyFile); // a missing file is the reader's to report
    return dialog.exec() == QDialog::Accepted ? Chosen(dialog) : std::string();
}

std::string AskForFileToSave(QWidget* parent, const FileQuestion& question,
                             const std::string& name) {
    QFileDialog dialog(parent, QString::fromUtf8(question.title));
    Prepare(dialog, "dlgSave", question);
    dialog.setAcceptMode(QFileDialog::AcceptSave);
    dialog.setFileMode(QFileDialog::AnyFile);
    if (!name.empty()) {
        dialog.selectFile(QString::fromStdString(name));
    }
    return dialog.exec() == QDialog::Accepted ? Chosen(dialog) : name;
}

std::string AskForFont(QWidget* parent, const char* title, const std::string& family) {
    QFontDialog dialog(QFont(QString::fromStdString(family)), parent);
    dialog.setObjectName(QStringLiteral("dlgFont"));
    dialog.setWindowTitle(QString::fromUtf8(title));
    return dialog.exec() == QDialog::Accepted ? dialog.currentFont().family().toStdString()
                                              : family;
}

Colour AskForColour(QWidget* parent, const char* title, Colour start) {
    QColorDialog dialog(ToQColor(start), parent);
    dialog.setObjectName(QStringLiteral("dlgColour"));
    dialog.setWindowTitle(QString::fromUtf8(title));
    return dialog.exec() == QDialog::Accepted ? ToColour(dialog.currentColor()) : start;
}

} // namespace vernacle
