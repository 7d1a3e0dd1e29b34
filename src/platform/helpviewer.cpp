#include "platform/helpviewer.h"

#include <QFileInfo>
#include <QPainter>
#include <QPointer>
#include <QScreen>
#include <QShortcut>
#include <QSvgRenderer>
#include <QTextBrowser>
#include <QVBoxLayout>

#include "platform/companions.h"

namespace vernacle {

namespace {

constexpr const char* kBook = ":/Vernacle.CHM/";
constexpr int kWidestBook = 560; // pixels

// Draws its pictures anew for the screen's pixels: a stretched one is hard to read.
class TopicBrowser : public QTextBrowser {
public:
    using QTextBrowser::QTextBrowser;

    QVariant loadResource(int type, const QUrl& name) override {
        QVariant resource = QTextBrowser::loadResource(type, name);
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
        setWindowTitle(QStringLiteral("Vernacle - Help"));
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

    // The right part of the page's screen.
    void PlaceBeside(const QWidget& page) {
        const QRect screen = page.screen()->availableGeometry();
        const int width = std::min(kWidestBook, screen.width() / 2);
        const int height = screen.height() * 4 / 5;
        setGeometry(screen.right() - width, screen.top() + (screen.height() - height) / 2, width,
                    height);
    }

private:
    QTextBrowser* topic_;
};

QPointer<HelpWindow> shownBook;

} // namespace

void ShowHelp(const QWidget& page, const std::string& topic) {
    const QString file = QLatin1String(kBook) + QString::fromStdString(topic);
    if (!QFileInfo(file).isFile()) {
        return;
    }
    if (!shownBook) {
        shownBook = new HelpWindow;
        shownBook->PlaceBeside(page);
    }
    shownBook->Open(file);
    ShowBeside(*shownBook, page);
}

} // namespace vernacle
