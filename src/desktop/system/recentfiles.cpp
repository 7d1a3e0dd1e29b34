#include "desktop/system/recentfiles.h"

#include <QDir>
#include <QSettings>

#include "desktop/system/programfiles.h"

namespace vernacle {

namespace {

constexpr const char* kList = "recent";

QSettings OpenSettings() {
    const QDir folder(QString::fromStdString(SystemFolders().userData));
    return {folder.filePath(QStringLiteral("workshop.ini")), QSettings::IniFormat};
}

void WriteRecentFiles(const std::vector<RecentFile>& files) {
    QSettings settings = OpenSettings();
    settings.remove(QLatin1String(kList));
    settings.beginWriteArray(QLatin1String(kList));
    for (int index = 0; index < static_cast<int>(files.size()); ++index) {
        const RecentFile& file = files[static_cast<std::size_t>(index)];
        settings.setArrayIndex(index);
        settings.setValue(QStringLiteral("name"), QString::fromStdString(file.name));
        settings.setValue(QStringLiteral("careful"), file.isCareful);
    }
    settings.endArray();
}

} // namespace

std::vector<RecentFile> RecentFiles() {
    QSettings settings = OpenSettings();
    std::vector<RecentFile> files;
    const int count = std::min(settings.beginReadArray(QLatin1String(kList)), kRecentFiles);
    for (int index = 0; index < count; ++index) {
        settings.setArrayIndex(index);
        files.push_back({settings.value(QStringLiteral("name")).toString().toStdString(),
                         settings.value(QStringLiteral("careful")).toBool()});
    }
    settings.endArray();
    return files;
}

void NoteRecentFile(const RecentFile& file) {
    std::vector<RecentFile> files = RecentFiles();
    std::erase_if(files, [&](const RecentFile& one) { return one.name == file.name; });
    files.insert(files.begin(), file);
    files.resize(std::min<std::size_t>(files.size(), kRecentFiles));
    WriteRecentFiles(files);
}

void ForgetRecentFile(const std::string& name) {
    std::vector<RecentFile> files = RecentFiles();
    std::erase_if(files, [&](const RecentFile& one) { return one.name == name; });
    WriteRecentFiles(files);
}

} // namespace vernacle
