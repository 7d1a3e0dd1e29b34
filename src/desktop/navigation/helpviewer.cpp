#include "desktop/navigation/helpviewer.h"

#include <utility>
#include <vector>

#include <QFileInfo>
#include <QPainter>
#include <QPointer>
#include <QScreen>
#include <QShortcut>
#include <QSvgRenderer>
#include <QTextBrowser>
#include <QVBoxLayout>

#include "desktop/navigation/helpbook.h"
#include "desktop/navigation/sidewindows.h"
#include "desktop/navigation/windowplacing.h"
#include "engine/core/service.h"

namespace vernacle {

namespace {

constexpr int kWidths[] = {560, 480, 400, 320}; // pixels
constexpr int kFrame = 80; // of a window, pixels: more than any is wide and high

// Finds by its name whatever a topic leads to, and draws its pictures anew for the screen's pixels:
// a stretched one is hard to read.
class TopicBrowser : public QTextBrowser {
public:
    using QTextBrowser::QTextBrowser;

    QVariant loadResource(int type, const QUrl& name) override {
        const QUrl file(QStringLiteral("qrc") + HelpFile(name.fileName()));
        QVariant resource = QTextBrowser::loadResource(type, file);
        if (type == QTextDocument::HtmlResource && Service.illustratedHelp) {
            return WithSections(QString::fromUtf8(resource.toByteArray()));
        }
        if (type != QTextDocument::ImageResource) {
            return resource;
        }
        QSvgRenderer drawing(resource.toByteArray());
        QImage picture(drawing.defaultSize() * devicePixelRatioF(),
                       QImage::Format_ARGB32_Premultiplied);
        picture.fill(Qt::white);
        QPainter painter(&picture);
        drawing.render(&painter);
        painter.end();
        picture.setDevicePixelRatio(devicePixelRatioF());
        return picture;
    }
};

class HelpWindow : public QWidget {
public:
    HelpWindow() {
        setObjectName(QStringLiteral("HelpViewer"));
        setWindowFlags(Qt::Dialog); // stands above the window it belongs to
        setWindowTitle(QString::fromUtf8(ServiceName()) + QStringLiteral(" - Help"));
        auto* column = new QVBoxLayout(this);
        column->setContentsMargins({});
        topic_ = new TopicBrowser(this);
        topic_->setObjectName(QStringLiteral("HelpTopic"));
        topic_->setAccessibleName(windowTitle());
        column->addWidget(topic_);
        auto* escape = new QShortcut(QKeySequence(Qt::Key_Escape), this);
        connect(escape, &QShortcut::activated, this, &QWidget::close);
    }

    void Open(const QString& file) {
        topic_->setSource(QUrl(QStringLiteral("qrc") + file));
        topic_->setFocus();
    }

    // Of the widths that a topic can be read at, the widest that leaves the page's entries free.
    void PlaceBeside(const QWidget& page) {
        const QRect screen = page.screen()->availableGeometry();
        std::vector<QSize> sizes;
        for (const int width : kWidths) {
            sizes.emplace_back(std::min(width, screen.width() / 2), screen.height() * 4 / 5);
        }
        placed_ = LeastCovering(page, sizes);
        setGeometry(placed_);
    }

    // Window managers shift a window by its frame.
    bool StandsWherePlaced() const {
        return size() == placed_.size() && (pos() - placed_.topLeft()).manhattanLength() < kFrame;
    }

    // Whether that is another topic than at the last call.
    bool TakePageTopic(const std::string& topic) {
        return std::exchange(pageTopic_, topic) != topic;
    }

private:
    QTextBrowser* topic_;
    QRect placed_;
    std::string pageTopic_; // of the page that was shown last
};

QPointer<HelpWindow> shownBook;

QString FileOf(const std::string& topic) {
    return HelpFile(QString::fromStdString(topic));
}

} // namespace

void ShowHelp(const QWidget& page, const std::string& topic) {
    if (!QFileInfo(FileOf(topic)).isFile()) {
        return;
    }
    if (!shownBook) {
        shownBook = new HelpWindow;
        shownBook->PlaceBeside(page);
    }
    shownBook->TakePageTopic(topic);
    shownBook->Open(FileOf(topic));
    ShowBeside(*shownBook, page);
}

void TurnHelpTo(const QWidget& page, const std::string& topic) {
    if (!shownBook || !shownBook->isVisible()) {
        return;
    }
    if (shownBook->TakePageTopic(topic)) {
        shownBook->Open(FileOf(topic));
    }
    if (shownBook->StandsWherePlaced()) {
        shownBook->PlaceBeside(page);
    }
}

} // namespace vernacle
