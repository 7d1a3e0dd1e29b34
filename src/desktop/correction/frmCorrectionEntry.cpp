#include "desktop/correction/frmCorrectionEntry.h"

#include <algorithm>

#include <QGridLayout>
#include <QHBoxLayout>
#include <QVBoxLayout>

#include "desktop/correction/curvehandle.h"
#include "desktop/correction/curvepicture.h"
#include "desktop/kit/entrybox.h"
#include "desktop/kit/formkit.h"
#include "desktop/navigation/navigator.h"
#include "desktop/system/dialogs.h"
#include "engine/base/hostservices.h"
#include "engine/base/numbertext.h"
#include "engine/base/runtimeerror.h"
#include "engine/core/design.h"
#include "engine/core/entry.h"
#include "engine/core/service.h"
#include "engine/correction/curve.h"
#include "engine/correction/curveplot.h"
#include "engine/correction/curvetable.h"

namespace vernacle {

namespace {

constexpr EntryLimits kPercent{0, 100}; // the ends of the curve, between which its points lie
constexpr double kLargest = 1e30;       // percent
constexpr double kKeyStep = 25;         // units: half a percent
constexpr int kBoxCharacters = 16;
constexpr int kButtonColumns = 2;
constexpr const char* kFilter = "Linearity files (*.COR)|*.COR";
constexpr const char* kEnding = "COR";

constexpr const char* kPointLabels[] = {"Label0", "Label1",  "Label2", "Label3",
                                        "Label4", "Label11", "Label12"};

// Of a straight line, for as long as nothing else is shown.
constexpr const char* kLinearTexts[] = {"0", "0", "20", "20", "50", "50", "80", "80", "100", "100"};

// Two places, or where the curve is kept as it stands all that a number has.
std::string ShownPercent(float fraction) {
    return Service.curveInFile ? PlainPercent(fraction) : FormatPercentEntry(fraction);
}

QString TitleOf(const char* page) {
    std::string title = page;
    if (!Design.DesignFileName.empty()) {
        title += " - " + Design.DesignFileName;
    }
    return QString::fromStdString(title);
}

} // namespace

frmCorrectionEntry::frmCorrectionEntry()
    : ModalForm("frmCorrectionEntry", TitleOf("Vernacle - Correction Entry")) {
    Build();
    if (Service.curveInFile) {
        ShowKeptCurve();
        return;
    }
    picture_->PlaceHandles(); // of a curve that is not allowed too
    FillBoxes();
    RedrawCorrectionCurve();
}

void frmCorrectionEntry::Build() {
    picture_ = new CurvePicture;
    auto* column = new QVBoxLayout;
    column->setSpacing(8);
    column->addLayout(MakeBoxes());
    Label10_ = MakeLabel("Label10", {});
    Label10_->setWordWrap(true);
    column->addWidget(Label10_);
    column->addLayout(MakeButtons());
    column->addStretch();
    auto* halves = new QHBoxLayout;
    halves->setSpacing(16);
    halves->addLayout(column);
    halves->addWidget(picture_, 1);
    auto* page = new QVBoxLayout(this);
    page->addWidget(MakeHeading("Label5", QStringLiteral("Movement nonlinearity correction")));
    page->addLayout(halves, 1);
    MakeHandles();
    resize(RoomySize());
}

QLayout* frmCorrectionEntry::MakeBoxes() {
    auto* grid = new QGridLayout;
    grid->setSpacing(kEntrySpacing);
    grid->addWidget(MakeLabel("Label8", QStringLiteral("Current %:")), 0, 1);
    grid->addWidget(MakeLabel("Label9", QStringLiteral("Deflection %:")), 0, 2);
    for (int point = 0; point < kCurvePoints; ++point) {
        const QString caption = QStringLiteral("Point %1:").arg(point);
        grid->addWidget(MakeLabel(kPointLabels[point], caption), point + 1, 0);
        for (int axis = 0; axis < 2; ++axis) {
            const int number = 2 * point + axis + 1;
            const std::string name = "Text" + std::to_string(number);
            const QString spoken = caption + (axis == 0 ? QStringLiteral(" current %")
                                                        : QStringLiteral(" deflection %"));
            EntryBox* box = Text(number) = new EntryBox(name.c_str(), spoken);
            connect(box, &EntryBox::returnPressed, this, &frmCorrectionEntry::cmdAcceptXYClicked);
            box->setMaximumWidth(kBoxCharacters * box->fontMetrics().averageCharWidth());
            if (point > 0 && point < kCurvePoints - 1) { // the ends cannot be entered
                box->TellRange(RangeText(kPercent, "%"));
            } else {
                box->setReadOnly(Service.curveInFile);
            }
            grid->addWidget(box, point + 1, axis + 1);
        }
    }
    return grid;
}

QLayout* frmCorrectionEntry::MakeButtons() {
    auto* grid = new QGridLayout;
    grid->setSpacing(kEntrySpacing);
    const auto add = [&](const char* name, const char* caption, auto clicked) {
        QPushButton* button = MakeButton(name, QString::fromUtf8(caption));
        button->setAutoDefault(false); // Return in a box applies, whatever has had the focus
        connect(button, &QPushButton::clicked, this, clicked);
        const int place = grid->count();
        grid->addWidget(button, place / kButtonColumns, place % kButtonColumns);
    };
    add("cmdAcceptXY", "Apply these entries", &frmCorrectionEntry::cmdAcceptXYClicked);
    add("cmdRead", "Get old curve", &frmCorrectionEntry::cmdReadClicked);
    add("cmdWrite", "Save this curve", &frmCorrectionEntry::cmdWriteClicked);
    add("cmdRestore", "Restore to linear", &frmCorrectionEntry::cmdRestoreClicked);
    add("cmdShowTable", "Show table", &frmCorrectionEntry::cmdShowTableClicked);
    add("cmdExitNo", "Return to Plate design", &QDialog::accept);
    return grid;
}

// The ends of the curve never move.
void frmCorrectionEntry::MakeHandles() {
    for (int index = 1; index < kCurvePoints - 1; ++index) {
        CurveHandle& handle = picture_->Handle(index);
        handle.SetMovable();
        connect(&handle, &CurveHandle::Pressed, this, [this, index] { HandlePressed(index); });
        connect(&handle, &CurveHandle::Dropped, this,
                [this, index](QPoint at) { HandleDropped(index, at); });
        connect(&handle, &CurveHandle::Stepped, this,
                [this, index](int across, int up) { HandleStepped(index, across, up); });
    }
}

void frmCorrectionEntry::SetPointFromDrop(int index, double x, double y) {
    picture_->MoveHandle(index, {x, y});
    PutCurvePoint(Design, index, x, y);
    RedrawCorrectionCurve();
}

void frmCorrectionEntry::RedrawCorrectionCurve() {
    if (Service.curveInFile) {
        ShowKeptCurve();
        RefuseOnce();
        return;
    }
    CurveVerdict verdict = CurveVerdict::Disallowed;
    try {
        ComputeCorrectionSlopes(Design);
        verdict = DrawCurvePlot(Design, picture_->Surface());
    } catch (const RunTimeError&) {
        ReportFailure("Two neighbouring points have the same current, so that the curve would have "
                      "no slope between them.\nPlease enter different currents, or restore the "
                      "curve to linear.");
        return;
    }
    Label10_->setText(QString::fromUtf8(kCurveAdvice));
    if (verdict == CurveVerdict::Disallowed) {
        Host.informationBox("Disallowed entry");
        return;
    }
    picture_->PlaceHandles();
    FillBoxes();
}

void frmCorrectionEntry::FillBoxes() {
    for (int number = 1; number <= kTextBoxes; ++number) {
        Text(number)->Show(ShownPercent(Design.CorrectionPair[number]));
    }
}

// Until the redraw, which need not come.
void frmCorrectionEntry::FillBoxesPlainly() {
    for (int number = 1; number <= kTextBoxes; ++number) {
        Text(number)->Show(PlainNumber(Design.CorrectionPair[number]));
    }
}

// The slopes are the redraw's.
void frmCorrectionEntry::ResetToLinear() {
    SetLinearPairs(Design);
    int number = 0;
    for (const char* text : kLinearTexts) {
        Text(++number)->Show(text);
    }
}

void frmCorrectionEntry::HandlePressed(int index) {
    DraggedPoint_ = static_cast<std::int16_t>(index);
}

// What is let go beside the plot's surface, or on another control upon it, is no drop.
void frmCorrectionEntry::HandleDropped(int index, const QPoint& at) {
    DraggedPoint_ = static_cast<std::int16_t>(index);
    CurveHandle& handle = picture_->Handle(index);
    if (!picture_->IsSurface(at, handle)) {
        handle.TakeBack();
        return;
    }
    const SurfacePoint place = picture_->PlotPlace(at);
    SetPointFromDrop(DraggedPoint_, place.x, place.y);
}

void frmCorrectionEntry::HandleStepped(int index, int across, int up) {
    const SurfacePoint from = CurvePointPlace(Design, index);
    SetPointFromDrop(index, from.x + across * kKeyStep, from.y - up * kKeyStep);
}

void frmCorrectionEntry::cmdAcceptXYClicked() {
    if (Service.curveInFile) {
        TakeChangedBoxes();
    } else {
        TakeBoxes();
    }
    Design.NumberOfCorrectionPoints = kCurvePoints;
    RedrawCorrectionCurve();
}

void frmCorrectionEntry::TakeBoxes() {
    Design.CorrectionPair[1] = Design.CorrectionPair[2] = FractionOf(kPercent.lowest);
    for (int number = kFirstEntered; number <= kLastEntered; ++number) {
        const double percent = std::clamp(NumericValue(Text(number)->Text()), -kLargest, kLargest);
        Design.CorrectionPair[number] = FractionOf(percent);
    }
    Design.CorrectionPair[kTextBoxes - 1] = Design.CorrectionPair[kTextBoxes] =
        FractionOf(kPercent.highest);
}

std::string frmCorrectionEntry::AskForCurve() {
    return AskForFileToOpen(this, {"Read correction data file", kFilter, kEnding});
}

void frmCorrectionEntry::cmdReadClicked() {
    if (Service.curveInFile) {
        ReadKeptCurve();
        return;
    }
    ResetToLinear();
    CorrectionFileName_ = AskForCurve();
    if (CorrectionFileName_.empty()) {
        return; // the curve is linear, whatever the picture shows
    }
    ReadCorrectionFile(Design, CorrectionFileName_);
    FillBoxesPlainly();
    RedrawCorrectionCurve();
}

void frmCorrectionEntry::cmdWriteClicked() {
    CorrectionFileName_ =
        AskForFileToSave(this, {"Save correction data file", kFilter, kEnding}, {});
    WriteCorrectionFile(Design, CorrectionFileName_);
}

void frmCorrectionEntry::cmdRestoreClicked() {
    ResetToLinear();
    RedrawCorrectionCurve();
}

void frmCorrectionEntry::cmdShowTableClicked() {
    ShowModal("frmCorrectionShow");
}

} // namespace vernacle
