// The correction entry where the curve outlives the session: it is kept as it was entered, and
// where it does not rise it is marked, refused once, and drawn as a straight line.
#include <QLabel>

#include "desktop/correction/curvepicture.h"
#include "desktop/correction/frmCorrectionEntry.h"
#include "desktop/kit/entrybox.h"
#include "engine/base/hostservices.h"
#include "engine/core/entry.h"
#include "engine/correction/curve.h"
#include "engine/correction/curveplot.h"
#include "engine/correction/curvetable.h"

namespace vernacle {

namespace {

constexpr EntryLimits kKept{-1000, 1000}; // percent, of what is typed and need not rise
constexpr QColor kNotRising(0xFF, 0xDD, 0xDD);

} // namespace

// The curve as it stands, drawn where it rises; what does not is marked and named.
void frmCorrectionEntry::ShowKeptCurve() {
    ComputeGuardedSlopes(Design);
    DrawCurvePlot(Design, picture_->Surface());
    picture_->PlaceHandles();
    FillBoxes();
    MarkRows();
}

void frmCorrectionEntry::MarkRows() {
    QStringList named;
    for (int point = 1; point < kCurvePoints; ++point) {
        const bool rises = PointRises(Design, point);
        for (const int axis : {1, 2}) {
            Text(2 * point + axis)->SetBackground(rises ? QColor(Qt::white) : kNotRising);
        }
        if (!rises) {
            named << QString::number(point);
        }
    }
    Label10_->setText(named.empty() ? QString::fromUtf8(kCurveAdvice)
                                    : QStringLiteral("Not 0.1 % above the point before: %1. A "
                                                     "straight line is drawn instead.")
                                          .arg(named.join(QStringLiteral(", "))));
}

// A second try of a curve that still does not rise needs no second box.
void frmCorrectionEntry::RefuseOnce() {
    const bool told = refused_;
    refused_ = !CurveRises(Design);
    if (refused_ && !told) {
        Host.informationBox(
            "The curve has to rise from point to point, by 0.1 % at least, in "
            "current and in deflection.\n\nYour entries are kept, and the points "
            "that do not rise are marked. Until they do, a straight line is drawn.");
    }
}

// What still shows the curve's own number leaves it as it is, to the last bit.
void frmCorrectionEntry::TakeChangedBoxes() {
    for (int number = kFirstEntered; number <= kLastEntered; ++number) {
        float& fraction = Design.CorrectionPair[number];
        if (Text(number)->Text() != PlainPercent(fraction)) {
            const double percent = kKept.Held(double{Text(number)->SteppedNumber()});
            fraction = FractionOf(percent);
        }
    }
}

void frmCorrectionEntry::ReadKeptCurve() {
    const std::string name = AskForCurve();
    if (name.empty()) {
        return;
    }
    CorrectionFileName_ = name;
    ReadCorrectionFile(Design, name);
    RedrawCorrectionCurve();
}

} // namespace vernacle
