#include "platform/form.h"

#include <QCloseEvent>
#include <QScrollArea>
#include <QVBoxLayout>

namespace vernacle {

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

} // namespace vernacle
