#include "desktop/app/frmExit.h"

#include <algorithm>

#include <QHBoxLayout>
#include <QVBoxLayout>

#include "desktop/kit/formkit.h"
#include "desktop/navigation/navigator.h"
#include "desktop/navigation/opendocument.h"
#include "desktop/pages/carefuldesign.h"
#include "engine/base/hostservices.h"
#include "engine/core/design.h"
#include "engine/core/entry.h"
#include "engine/core/service.h"
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
    return Service.carefulFiles
               ? QStringLiteral("This session has been kept")
               : QStringLiteral("This design has been saved (as 'LASTSESSION.VRN')");
}

// Whether leaving loses changes, but for the session that is kept in any case.
bool HasChanges() {
    return Service.carefulFiles && !Document().IsKept();
}

QString Question() {
    if (HasChanges()) {
        return QStringLiteral("The design has changes that no file holds. Leave %1?\nThe session "
                              "is kept in any case, and can be gone on with at the next start.")
            .arg(QLatin1String(ServiceName()));
    }
    return QStringLiteral("Leave %1? The design is kept as the last session in any case.")
        .arg(QLatin1String(ServiceName()));
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
    cmdExit_ = MakeButton("cmdExit", HasChanges() ? QStringLiteral("Exit without saving")
                                                  : QStringLiteral("Exit / quit"));
    connect(cmdCancel_, &QPushButton::clicked, this, &frmExit::cmdCancelClicked);
    connect(cmdExit_, &QPushButton::clicked, this, &frmExit::cmdExitClicked);
    cmdCancel_->setDefault(true);
    cmdCancel_->setFocus();

    auto* column = new QVBoxLayout(this);
    column->addStretch();
    column->addWidget(MakeLabel("Label2", Question()), 0, Qt::AlignHCenter);
    column->addStretch();
    column->addLayout(MakeButtons());
    column->addStretch();
    setFixedSize((kPageTwips * PixelsPerTwip()).toSize().expandedTo(sizeHint()));
}

QLayout* frmExit::MakeButtons() {
    auto* buttons = new QHBoxLayout;
    buttons->addStretch();
    buttons->addWidget(cmdCancel_);
    if (HasChanges()) {
        cmdSave_ = MakeButton("cmdSave", QStringLiteral("Save and exit"));
        connect(cmdSave_, &QPushButton::clicked, this, &frmExit::cmdSaveClicked);
        buttons->addWidget(cmdSave_);
    }
    buttons->addWidget(cmdExit_);
    buttons->addStretch();
    return buttons;
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

void frmExit::cmdSaveClicked() {
    if (SaveDesignByDialog(this)) {
        cmdExitClicked();
    }
}

// Who was told that the session could not be kept may mend it, or go all the same.
void frmExit::cmdExitClicked() {
    const std::string name = Design.DesignFileName;
    if (SaveLastSession(Design)) {
        cmdCancel_->setEnabled(false);
        cmdExit_->setEnabled(false);
        if (cmdSave_) {
            cmdSave_->setEnabled(false);
        }
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
