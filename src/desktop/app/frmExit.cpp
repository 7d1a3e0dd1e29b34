#include "desktop/app/frmExit.h"

#include <algorithm>

#include <QHBoxLayout>
#include <QVBoxLayout>

#include "desktop/kit/formkit.h"
#include "desktop/navigation/navigator.h"
#include "engine/base/hostservices.h"
#include "engine/core/design.h"
#include "engine/core/entry.h"
#include "engine/designfile/readwrite.h"

namespace vernacle {

namespace {

constexpr QRectF kNoticeTwips(60, 200, 8700, 400);
constexpr QSizeF kPageTwips(8820, 3000);
constexpr double kScreenTwips = 9000;  // of height, at a screen factor of 1
constexpr double kNoticeFont = 0.0008; // points per twip of the screen's height
constexpr float kNoticeSeconds = 2;
constexpr QColor kNoticeGround(0xEE, 0xFF, 0xFF);

QString Notice() {
    return QStringLiteral("This design has been saved (as 'LASTSESSION.VRN')");
}

QFont NoticeFont(QFont font) {
    font.setPointSizeF(double{Design.ScreenScaleY} * kScreenTwips * kNoticeFont);
    font.setBold(true);
    return font;
}

} // namespace

frmExit::frmExit() : ModalForm("frmExit", QStringLiteral("Vernacle - Exit ?")) {
    Label1_ = MakeLabel("Label1", {});
    Label1_->setParent(this);
    Label1_->setFont(NoticeFont(font()));
    Label1_->hide();
    cmdCancel_ = MakeButton("cmdCancel", QStringLiteral("Cancel and continue"));
    cmdExit_ = MakeButton("cmdExit", QStringLiteral("Exit / quit"));
    connect(cmdCancel_, &QPushButton::clicked, this, &frmExit::cmdCancelClicked);
    connect(cmdExit_, &QPushButton::clicked, this, &frmExit::cmdExitClicked);
    cmdCancel_->setDefault(true);
    cmdCancel_->setFocus();

    auto* column = new QVBoxLayout(this);
    column->addStretch();
    column->addWidget(
        MakeLabel("Label2", QStringLiteral("Leave Vernacle? The design is kept as the last "
                                           "session in any case.")),
        0, Qt::AlignHCenter);
    column->addStretch();
    auto* buttons = new QHBoxLayout;
    buttons->addStretch();
    buttons->addWidget(cmdCancel_);
    buttons->addWidget(cmdExit_);
    buttons->addStretch();
    column->addLayout(buttons);
    column->addStretch();
    setFixedSize((kPageTwips * PixelsPerTwip()).toSize().expandedTo(sizeHint()));
}

// The page is as wide as its notice asks for: on a large screen the notice's font is large.
double frmExit::PixelsPerTwip() const {
    const QFontMetricsF metrics(Label1_->font());
    return std::max({1 / kTwipsPerPixel,
                     metrics.horizontalAdvance(Notice()) * 1.05 / kNoticeTwips.width(),
                     metrics.height() / kNoticeTwips.height()});
}

void frmExit::cmdCancelClicked() {
    reject();
}

// Who was told that the session could not be kept may mend it, or go all the same.
void frmExit::cmdExitClicked() {
    const std::string name = Design.DesignFileName;
    if (SaveLastSession(Design)) {
        cmdCancel_->setEnabled(false);
        cmdExit_->setEnabled(false);
        ShowNotice();
        Delay(kNoticeSeconds);
        Label1_->hide();
    } else if (!failed_) {
        failed_ = true;
        Design.DesignFileName = name;
        return;
    }
    accept();
    EndProcess();
}

void frmExit::ShowNotice() {
    const double scale = PixelsPerTwip();
    QPalette colours = Label1_->palette();
    colours.setColor(QPalette::Window, kNoticeGround);
    colours.setColor(QPalette::WindowText, Qt::blue);
    Label1_->setPalette(colours);
    Label1_->setAutoFillBackground(true);
    Label1_->setText(Notice());
    Label1_->setGeometry(
        QRectF(kNoticeTwips.topLeft() * scale, kNoticeTwips.size() * scale).toRect());
    Label1_->show();
}

} // namespace vernacle
