#include "platform/form.h"

#include <QCloseEvent>
#include <QScrollArea>
#include <QVBoxLayout>

#include "core/seam.h"

namespace vernacle {

namespace {

constexpr double kShareOfScreen = 0.8;
constexpr double kTwipsPerPixel = 15;
constexpr QSize kLargestForm(1280, 860);

} // namespace

Page::Page(const char* name) {
    setObjectName(QLatin1String(name));
    auto* frame = new QVBoxLayout(this);
    frame->setContentsMargins({});
    auto* scroller = new QScrollArea(this);
    scroller->setObjectName(objectName() + QStringLiteral("Scroller"));
    scroller->setFrameShape(QFrame::NoFrame);
    scroller->setFocusPolicy(Qt::NoFocus);
    scroller->setWidgetResizable(true);
    frame->addWidget(scroller);
    auto* content = new QWidget;
    body_ = new QVBoxLayout(content);
    scroller->setWidget(content);
}

void Page::closeEvent(QCloseEvent* event) {
    event->ignore(); // the page decides itself when it goes
    CloseBoxClicked();
}

ModalForm::ModalForm(const char* name, const QString& title) {
    setObjectName(QLatin1String(name));
    setWindowTitle(title);
}

QSize ModalForm::RoomySize() {
    const ScreenSize screen = Host.screenSize();
    const QSizeF pixels(double{screen.widthTwips} / kTwipsPerPixel,
                        double{screen.heightTwips} / kTwipsPerPixel);
    return (pixels * kShareOfScreen).toSize().boundedTo(kLargestForm);
}

} // namespace vernacle
