#include "desktop/navigation/helpbook.h"

#include <QFile>
#include <QRegularExpression>

#include "engine/core/service.h"

namespace vernacle {

namespace {

constexpr const char* kBook = ":/Vernacle.CHM/";
constexpr const char* kIllustratedBook = ":/Workshop.CHM/";

QString EverydayTopic(const QString& name) {
    QFile file(QLatin1String(kBook) + name);
    return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()) : QString();
}

// From its heading to the next one, or to the topic's foot.
QString SectionOf(const QString& topic, const QString& heading) {
    static const QRegularExpression kEnd(QStringLiteral("<h2>|<hr>"));
    const QString html = EverydayTopic(topic);
    const qsizetype title = html.indexOf(heading + QLatin1String("</h2>"));
    if (title < 0) {
        return {};
    }
    const qsizetype start = html.lastIndexOf(QLatin1String("<h2>"), title);
    return html.mid(start, html.indexOf(kEnd, title) - start);
}

} // namespace

QString HelpFile(const QString& name) {
    const QString own = QLatin1String(kIllustratedBook) + name;
    return Service.illustratedHelp && QFile::exists(own) ? own : QLatin1String(kBook) + name;
}

QString WithSections(const QString& topic) {
    static const QRegularExpression kTaken(QStringLiteral("<!--(\\w+\\.htm): ([^>]+)-->"));
    QString text;
    qsizetype done = 0;
    for (auto taken = kTaken.globalMatch(topic); taken.hasNext();) {
        const QRegularExpressionMatch line = taken.next();
        text += topic.mid(done, line.capturedStart() - done) +
                SectionOf(line.captured(1), line.captured(2));
        done = line.capturedEnd();
    }
    return text + topic.mid(done);
}

} // namespace vernacle
