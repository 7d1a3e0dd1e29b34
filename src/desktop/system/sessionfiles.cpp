#include "desktop/system/sessionfiles.h"

#include <QDateTime>
#include <QDir>
#include <QFileInfo>

namespace vernacle {

namespace {

QStringList TurnsOf(const std::string& folder, const std::string& name) {
    const QFileInfo file(QString::fromStdString(name));
    QStringList turns;
    for (int turn = 1; turn <= SessionFiles::kKept; ++turn) {
        const QString number = turn == 1 ? QString() : QStringLiteral("-%1").arg(turn);
        turns << QDir(QString::fromStdString(folder))
                     .filePath(file.completeBaseName() + number + QLatin1Char('.') + file.suffix());
    }
    return turns;
}

QDateTime WrittenLast(const QString& file) {
    return QFileInfo(file)
        .lastModified(); // not valid, and so the oldest, for one that is not there
}

} // namespace

std::string SessionFiles::PathOf(const std::string& name) {
    if (chosen_.empty()) {
        QDir().mkpath(QString::fromStdString(folder_)); // else the file's own failure tells
        const QStringList turns = TurnsOf(folder_, name);
        chosen_ = std::min_element(turns.begin(), turns.end(),
                                   [](const QString& one, const QString& other) {
                                       return WrittenLast(one) < WrittenLast(other);
                                   })
                      ->toStdString();
    }
    return chosen_;
}

std::vector<std::string> SessionFiles::NewestFirst(const std::string& name) const {
    QStringList turns = TurnsOf(folder_, name);
    turns.removeIf([](const QString& file) { return !QFileInfo(file).isFile(); });
    std::stable_sort(turns.begin(), turns.end(), [](const QString& one, const QString& other) {
        return WrittenLast(one) > WrittenLast(other);
    });
    std::vector<std::string> files;
    for (const QString& file : turns) {
        files.push_back(file.toStdString());
    }
    return files;
}

std::string SessionFiles::Newest(const std::string& name) {
    const std::vector<std::string> files = NewestFirst(name);
    return files.empty() ? PathOf(name) : files.front();
}

} // namespace vernacle
