#include "desktop/kit/form.h"

#include <QAccessibleWidget>
#include <QApplication>
#include <QCloseEvent>
#include <QScrollArea>
#include <QTimer>
#include <QVBoxLayout>

#include "engine/base/hostservices.h"

namespace vernacle {

namespace {

constexpr double kShareOfScreen = 0.8;
constexpr int kMouseCheckMs = 50;
constexpr QSize kLargestForm(1280, 860);

// The toolkit tells a screen reader that a plain window is a filler; that of a page is a frame, and
// that of a window beside the page a dialog. Its name is its title.
QAccessibleInterface* SpeakOfWindow(const QString& className, QObject* object) {
    auto* widget = qobject_cast<QWidget*>(object);
    if (className != QLatin1String("QWidget") || !widget || !widget->isWindow()) {
        return nullptr;
    }
    const bool isDialog = widget->windowType() == Qt::Dialog;
    return new QAccessibleWidget(widget, isDialog ? QAccessible::Dialog : QAccessible::Window);
}

QSize ScreenPixels() {
    const ScreenSize screen = Host.screenSize();
    return QSizeF(double{screen.widthTwips} / kTwipsPerPixel,
                  double{screen.heightTwips} / kTwipsPerPixel)
        .toSize();
}

} // namespace

Page::Page(const char* name) {
    setObjectName(QLatin1String(name));
    frame_ = new QVBoxLayout(this);
    frame_->setContentsMargins({});
    scroller_ = new QScrollArea(this);
    scroller_->setObjectName(objectName() + QStringLiteral("Scroller"));
    scroller_->setFrameShape(QFrame::NoFrame);
    scroller_->setFocusPolicy(Qt::NoFocus);
    scroller_->setWidgetResizable(true);
    frame_->addWidget(scroller_, 1);
    auto* content = new QWidget;
    body_ = new QVBoxLayout(content);
    scroller_->setWidget(content);
    // Behind the layout of what was shown just now.
    connect(qApp, &QApplication::focusChanged, this, &Page::ShowFocused, Qt::QueuedConnection);
}

// The edge that lies at the body has the spacing of the parts, not twice the window's margin.
QVBoxLayout& Page::Head() {
    if (!head_) {
        QMargins around = body_->contentsMargins();
        around.setTop(0);
        body_->setContentsMargins(around);
        head_ = new QVBoxLayout;
        head_->setContentsMargins(around.left(), around.left(), around.right(), 0);
        frame_->insertLayout(0, head_);
    }
    return *head_;
}

QVBoxLayout& Page::Foot() {
    if (!foot_) {
        QMargins around = body_->contentsMargins();
        around.setBottom(0);
        body_->setContentsMargins(around);
        foot_ = new QVBoxLayout;
        foot_->setContentsMargins(around.left(), 0, around.right(), around.left());
        frame_->addLayout(foot_);
    }
    return *foot_;
}

// A button that is pressed stays under the mouse until it is let go.
void Page::ShowFocused() {
    if (QApplication::mouseButtons() != Qt::NoButton) {
        QTimer::singleShot(kMouseCheckMs, this, &Page::ShowFocused);
        return;
    }
    QCoreApplication::sendPostedEvents(nullptr, QEvent::LayoutRequest);
    QWidget* focused = focusWidget();
    for (QWidget* around = focused; around && around != this; around = around->parentWidget()) {
        if (auto* scroller = qobject_cast<QScrollArea*>(around); scroller && around != focused) {
            scroller->ensureWidgetVisible(focused);
        }
    }
}

void Page::resizeEvent(QResizeEvent* event) {
    QWidget::resizeEvent(event);
    QMetaObject::invokeMethod(this, &Page::ShowFocused, Qt::QueuedConnection);
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
    return (ScreenPixels() * kShareOfScreen).boundedTo(kLargestForm);
}

void InstallWindowSpeech() {
    static const bool installed = (QAccessible::installFactory(SpeakOfWindow), true);
    static_cast<void>(installed);
}

int TallHeight() {
    return static_cast<int>(ScreenPixels().height() * kShareOfScreen);
}

} // namespace vernacle
