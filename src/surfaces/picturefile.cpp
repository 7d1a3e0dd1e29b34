#include "surfaces/picturefile.h"

#include <QDir>
#include <QImageReader>

#include "core/runtimeerror.h"

namespace vernacle {

namespace {

// What stands in the folder under that name: the name itself first, then those of other case.
QStringList Candidates(const QDir& folder, const QString& name) {
    QStringList found;
    if (name == QLatin1String("..") || folder.exists(name)) {
        found << name;
    }
    const QString wanted = name.toUpper();
    const auto kinds = QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot;
    for (const QString& entry : folder.entryList(kinds, QDir::Name)) {
        if (entry != name && entry.toUpper() == wanted) {
            found << entry;
        }
    }
    return found;
}

// Two folders may differ in case only, and the file stand in either. Empty if it is in none.
QString FindBelow(const QDir& folder, const QStringList& path) {
    for (const QString& entry : Candidates(folder, path.first())) {
        const QString found = folder.filePath(entry);
        if (path.size() == 1) {
            return found;
        }
        const QString below = FindBelow(QDir(found), path.mid(1));
        if (!below.isEmpty()) {
            return below;
        }
    }
    return {};
}

} // namespace

QString ExistingFile(const std::string& name) {
    const QString exact = QString::fromStdString(name);
    if (exact.isEmpty() || QFile::exists(exact)) {
        return exact;
    }
    const QString clean = QDir::cleanPath(exact);
    const QStringList path = clean.split(QLatin1Char('/'), Qt::SkipEmptyParts);
    const QDir start(QDir::isAbsolutePath(clean) ? QDir::rootPath() : QStringLiteral("."));
    const QString found = path.isEmpty() ? QString() : FindBelow(start, path);
    return found.isEmpty() ? exact : found;
}

QImage LoadPicture(const std::string& file) {
    QImageReader reader(ExistingFile(file));
    reader.setDecideFormatFromContent(true);
    QImage image = reader.read();
    if (image.isNull()) {
        throw RunTimeError(file + ": " + reader.errorString().toStdString());
    }
    return image;
}

} // namespace vernacle
