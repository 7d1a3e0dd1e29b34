#include "surfaces/picturefile.h"

#include <QDateTime>
#include <QDir>
#include <QFileInfo>
#include <QImageReader>

#include "engine/base/runtimeerror.h"

namespace vernacle {

namespace {

// The folders or files there of that name: the name itself first, then those of other case.
QStringList Candidates(const QDir& folder, const QString& name, QDir::Filters kind) {
    QStringList found;
    const QFileInfo exact(folder, name);
    if (kind == QDir::Files ? exact.isFile() : exact.isDir()) {
        found << name;
    }
    const QString wanted = name.toUpper();
    for (const QString& entry : folder.entryList(kind | QDir::Hidden, QDir::Name)) {
        if (entry != name && entry.toUpper() == wanted) {
            found << entry;
        }
    }
    return found;
}

// Two folders may differ in case only, and the file stand in either. Empty if it is in none.
QString FindBelow(const QDir& folder, const QStringList& path) {
    const bool isLast = path.size() == 1;
    for (const QString& entry :
         Candidates(folder, path.first(), isLast ? QDir::Files : QDir::Dirs)) {
        QString found = folder.filePath(entry);
        if (isLast) {
            return found;
        }
        QString below = FindBelow(QDir(found), path.mid(1));
        if (!below.isEmpty()) {
            return below;
        }
    }
    return {};
}

struct LoadedPicture {
    QString path;
    QDateTime modified;
    qint64 bytes = 0;
    QImage image;

    bool IsStill(const QFileInfo& file) const {
        return !image.isNull() && file.absoluteFilePath() == path &&
               file.lastModified() == modified && file.size() == bytes;
    }
};

} // namespace

QString ExistingFile(const std::string& name) {
    QString exact = QString::fromStdString(name);
    if (exact.isEmpty() || QFileInfo(exact).isFile()) {
        return exact;
    }
    const QString clean = QDir::cleanPath(exact);
    const QStringList path = clean.split(QLatin1Char('/'), Qt::SkipEmptyParts);
    const QDir start(QDir::isAbsolutePath(clean) ? QDir::rootPath() : QStringLiteral("."));
    const QString found = path.isEmpty() ? QString() : FindBelow(start, path);
    return found.isEmpty() ? exact : found;
}

QImage LoadPicture(const std::string& file) {
    static LoadedPicture last; // a redraw of the same plate does not unpack it again
    const QFileInfo found(ExistingFile(file));
    if (last.IsStill(found)) {
        return last.image;
    }
    QImageReader reader(found.filePath());
    reader.setDecideFormatFromContent(true);
    QImage image = reader.read();
    if (image.isNull()) {
        throw RunTimeError(file + ": " + reader.errorString().toStdString());
    }
    last = {found.absoluteFilePath(), found.lastModified(), found.size(), image};
    return image;
}

} // namespace vernacle
