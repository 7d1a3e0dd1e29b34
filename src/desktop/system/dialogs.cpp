#include "desktop/system/dialogs.h"

#include <QApplication>
#include <QColorDialog>
#include <QDir>
#include <QFileDialog>
#include <QFontDialog>
#include <QLineEdit>
#include <QListView>
#include <QMessageBox>
#include <QPushButton>
#include <QUrl>

#include "desktop/system/programfiles.h"
#include "engine/core/design.h"
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

// The toolkit's dialog takes what its list has selected before what its box says, and lets go of
// the selection only while the box has the focus, which a window that has just come up may get
// later than its first keys. Here the name that was typed counts.
class FileDialog : public QFileDialog {
public:
    FileDialog(QWidget* parent, const FileQuestion& question, const char* name)
        : QFileDialog(parent, QString::fromUtf8(question.title)) {
        setObjectName(QLatin1String(name));
        SetFilter(*this, question.filter);
        setDefaultSuffix(QLatin1String(question.ending));
        setFileMode(QFileDialog::AnyFile);
        nameBox_ = findChild<QLineEdit*>(QStringLiteral("fileNameEdit"));
        list_ = findChild<QListView*>(QStringLiteral("listView"));
        if (nameBox_) { // none in the desktop's own dialog
            nameBox_->installEventFilter(this);
        }
    }

    bool eventFilter(QObject* watched, QEvent* event) override {
        const bool isKey =
            event->type() == QEvent::KeyPress || event->type() == QEvent::InputMethod;
        if (watched == nameBox_ && isKey && !nameBox_->hasFocus()) {
            QApplication::setActiveWindow(this); // a window that gets keys has them
        }
        return QFileDialog::eventFilter(watched, event);
    }

protected:
    void accept() override {
        if (list_ && nameBox_ && !nameBox_->text().isEmpty() && nameBox_->text() != Selected()) {
            list_->selectionModel()->clearSelection();
        }
        QFileDialog::accept();
    }

private:
    QString Selected() const {
        return list_->selectionModel()->selectedRows().value(0).data().toString();
    }

    QLineEdit* nameBox_ = nullptr;
    QListView* list_ = nullptr;
};

// Where a file was chosen last in this run.
QString& LastFolder() {
    static QString folder;
    return folder;
}

// That of the design, which may have come without a dialog.
QString StartFolder() {
    const QFileInfo design(QString::fromStdString(Design.DesignFileName));
    if (design.isAbsolute() && design.dir().exists()) {
        return design.path();
    }
    return QFileInfo(LastFolder()).isDir() ? LastFolder()
                                           : QString::fromStdString(SystemFolders().documents);
}

// The places at the dialog's side, with those that a user of plates goes to.
QList<QUrl> WithOurPlaces(QList<QUrl> places) {
    for (const std::string& folder : {SystemFolders().documents, ExamplesFolder()}) {
        const QUrl place = QUrl::fromLocalFile(QString::fromStdString(folder));
        if (!folder.empty() && !places.contains(place)) {
            places << place;
        }
    }
    return places;
}

// The name that was chosen; empty after a cancel.
std::string Ask(QFileDialog& dialog) {
    const QList<QUrl> places = dialog.sidebarUrls();
    dialog.setSidebarUrls(WithOurPlaces(places));
    const bool accepted = dialog.exec() == QDialog::Accepted;
    dialog.setSidebarUrls(places); // the toolkit keeps them for all programs of this user
    if (!accepted) {
        return {};
    }
    const QString chosen = dialog.selectedFiles().value(0);
    LastFolder() = QFileInfo(chosen).absolutePath();
    return chosen.toStdString();
}

} // namespace

// A missing file is the reader's to report.
std::string AskForFileToOpen(QWidget* parent, const FileQuestion& question) {
    FileDialog dialog(parent, question, "dlgOpen");
    dialog.setDirectory(StartFolder());
    return Ask(dialog);
}

std::string AskForFileToSave(QWidget* parent, const FileQuestion& question,
                             const std::string& name) {
    const std::string chosen = AskForNewFile(parent, question, name);
    return chosen.empty() ? name : chosen;
}

std::string AskForNewFile(QWidget* parent, const FileQuestion& question, const std::string& name) {
    FileDialog dialog(parent, question, "dlgSave");
    dialog.setAcceptMode(QFileDialog::AcceptSave);
    dialog.setDirectory(StartFolder());
    if (!name.empty()) {
        const QFileInfo file(QString::fromStdString(name));
        dialog.selectFile(file.dir().exists() ? file.filePath() : file.fileName());
    }
    return Ask(dialog);
}

bool AskWhetherToContinue(QWidget* parent, const std::string& question) {
    QMessageBox box(QMessageBox::Question, QStringLiteral("Vernacle"),
                    QString::fromStdString(question), QMessageBox::Ok | QMessageBox::Cancel,
                    parent);
    box.setObjectName(QStringLiteral("boxContinue"));
    box.setTextFormat(Qt::PlainText); // a design may hold what looks like markup
    box.button(QMessageBox::Ok)->setText(QStringLiteral("Continue"));
    box.button(QMessageBox::Cancel)->setText(QStringLiteral("Stay"));
    box.setDefaultButton(QMessageBox::Cancel);
    return box.exec() == QMessageBox::Ok;
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
