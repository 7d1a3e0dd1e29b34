#include "desktop/system/programfiles.h"

#include <algorithm>
#include <filesystem>

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>
#include <QStandardPaths>
#include <QTemporaryFile>

#ifdef Q_OS_UNIX
#include <unistd.h>
#endif

namespace vernacle {

namespace {

constexpr const char* kCalibrationFile = "Calibrate.txt";
constexpr const char* kExamples = "examples";

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

// Where files have no owner they are everybody's.
bool IsOwnFile(const std::string& path) {
    const QFileInfo file(QString::fromStdString(path));
#ifdef Q_OS_UNIX
    return file.isFile() && file.ownerId() == ::geteuid();
#else
    return file.isFile();
#endif
}

std::filesystem::file_time_type WrittenAt(const std::string& path) {
    std::error_code ignored; // one that has gone is the oldest
    return std::filesystem::last_write_time(path, ignored);
}

QString DocumentsFolder() {
    const QString folder = QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation);
    return !folder.isEmpty() && QDir(folder).exists() ? folder : QDir::homePath();
}

QString ShareFolder() {
    const QDir program(QCoreApplication::applicationDirPath());
    return QDir::cleanPath(program.filePath(QStringLiteral(VERNACLE_SHARE)));
}

} // namespace

ProgramFolders SystemFolders() {
    return {
        .program = QCoreApplication::applicationDirPath().toStdString(),
        .userData =
            QStandardPaths::writableLocation(QStandardPaths::AppLocalDataLocation).toStdString(),
        .documents = DocumentsFolder().toStdString(),
        .share = ShareFolder().toStdString(),
    };
}

std::string ProgramFiles::PathOf(const std::string& name) {
    if (chosen_.empty()) {
        chosen_ = CanWriteIn(folders_.program) ? folders_.program : folders_.userData;
    }
    if (chosen_ == folders_.userData) {
        QDir().mkpath(QString::fromStdString(chosen_)); // else the file's own failure tells
    }
    return PathIn(chosen_, name);
}

// The chosen one first.
std::vector<std::string> ProgramFiles::Places(const std::string& name) {
    const std::string chosen = PathOf(name);
    const bool besideProgram = chosen_ == folders_.program;
    return {chosen, PathIn(besideProgram ? folders_.userData : folders_.program, name)};
}

std::vector<std::string> ProgramFiles::OwnNewestFirst(const std::string& name) {
    std::vector<std::string> files = Places(name);
    std::erase_if(files, [](const std::string& file) { return !IsOwnFile(file); });
    std::stable_sort(files.begin(), files.end(),
                     [](const std::string& one, const std::string& other) {
                         return WrittenAt(one) > WrittenAt(other);
                     });
    return files;
}

std::string ProgramFiles::NewestOf(const std::string& name) {
    const std::vector<std::string> files = OwnNewestFirst(name);
    return files.empty() ? PathOf(name) : files.front();
}

std::string ProgramFiles::Calibration() {
    return PathOf(kCalibrationFile);
}

std::vector<std::string> ProgramFiles::Calibrations() {
    std::vector<std::string> files = OwnNewestFirst(kCalibrationFile);
    for (const std::string& place : Places(kCalibrationFile)) {
        if (std::find(files.begin(), files.end(), place) == files.end()) {
            files.push_back(place);
        }
    }
    files.push_back(PathIn(folders_.share, kCalibrationFile));
    return files;
}

std::string ExamplesFolder() {
    return ExamplesFolderIn(SystemFolders());
}

std::string ExamplesFolderIn(const ProgramFolders& folders) {
    const std::string examples = PathIn(folders.share, kExamples);
    return QFileInfo(QString::fromStdString(examples)).isDir() ? examples : std::string();
}

std::string ProposedFile(const std::string& name) {
    return PathIn(SystemFolders().documents, name);
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

} // namespace vernacle
