#include "platform/programfiles.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QStandardPaths>
#include <QTemporaryFile>

namespace vernacle {

namespace {

constexpr const char* kCalibrationFile = "Calibrate.txt";

std::string PathIn(const std::string& folder, const std::string& name) {
    const QDir place(QString::fromStdString(folder));
    return QDir::toNativeSeparators(place.filePath(QString::fromStdString(name))).toStdString();
}

// By trying, since the rights that a folder shows are not the whole truth: file systems may be
// read-only, and some systems keep their rights in lists.
bool CanWriteIn(const std::string& folder) {
    QTemporaryFile trial(QString::fromStdString(PathIn(folder, "Vernacle-XXXXXX.tmp")));
    return trial.open();
}

// The copy is the user's own, and so can be written even where the original cannot.
void CopyCalibration(const ProgramFolders& folders) {
    const QString copy = QString::fromStdString(PathIn(folders.userData, kCalibrationFile));
    if (QFile::copy(QString::fromStdString(PathIn(folders.program, kCalibrationFile)), copy)) {
        QFile::setPermissions(copy,
                              QFile::permissions(copy) | QFile::ReadOwner | QFile::WriteOwner);
    }
}

void MakeUserData(const ProgramFolders& folders) {
    const QDir folder(QString::fromStdString(folders.userData));
    if (!folder.exists() && folder.mkpath(QStringLiteral("."))) {
        CopyCalibration(folders);
    }
}

QString DocumentsFolder() {
    const QString folder = QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation);
    return !folder.isEmpty() && QDir(folder).exists() ? folder : QDir::homePath();
}

} // namespace

ProgramFolders SystemFolders() {
    return {
        .program = QCoreApplication::applicationDirPath().toStdString(),
        .userData =
            QStandardPaths::writableLocation(QStandardPaths::AppLocalDataLocation).toStdString(),
        .documents = DocumentsFolder().toStdString(),
    };
}

std::string ProgramFile(const std::string& name) {
    return ProgramFileIn(SystemFolders(), name);
}

std::string ProgramFileIn(const ProgramFolders& folders, const std::string& name) {
    if (CanWriteIn(folders.program)) {
        return PathIn(folders.program, name);
    }
    MakeUserData(folders);
    return PathIn(folders.userData, name);
}

std::string PlotterFileName() {
    return PlotterFileNameIn(SystemFolders());
}

std::string PlotterFileNameIn([[maybe_unused]] const ProgramFolders& folders) {
#ifdef Q_OS_WIN
    return "C:/HPGLfile.HPGL";
#else
    return PathIn(folders.documents, "HPGLfile.HPGL");
#endif
}

std::string FileFor(const std::string& name) {
    return FileForIn(SystemFolders(), name);
}

std::string FileForIn(const ProgramFolders& folders, const std::string& name) {
    return name == kCalibrationFile ? ProgramFileIn(folders, name) : name;
}

} // namespace vernacle
