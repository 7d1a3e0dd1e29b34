#include "desktop/correction/curvepicture.h"

#include <algorithm>

#include "desktop/correction/curvehandle.h"
#include "desktop/kit/formkit.h"
#include "engine/correction/curveplot.h"

namespace vernacle {

namespace {

struct AxisMark {
    const char* level;   // along the X axis
    const char* upright; // along the Y axis
    const char* text;
    double share;
};

constexpr AxisMark kAxisMarks[] = {
    {"LabelZero", "LabelZeroV", "0", 0}, {"Label20", "Label20V", "20", 0.2},
    {"Label40", "Label40V", "40", 0.4},  {"Label60", "Label60V", "60", 0.6},
    {"Label80", "Label80V", "80", 0.8},  {"Label100", "Label100V", "100", 1},
};

constexpr int kFromAxis = 10; // pixels, clear of the handles

// A point that a file puts anywhere has a place that a widget can have.
QPointF Near(const QPointF& at) {
    constexpr double kFar = 1e6; // pixels
    return {std::clamp(at.x(), -kFar, kFar), std::clamp(at.y(), -kFar, kFar)};
}

} // namespace

CurvePicture::CurvePicture() : PictureBox("picCurve", CurvePlotArea(), UnitShape::Square) {
    setAccessibleName(QStringLiteral("Plot of the correction curve"));
    for (const AxisMark& mark : kAxisMarks) {
        AddMark(mark.level, mark.text, CurvePlace(mark.share, 0), Side::Below);
        AddMark(mark.upright, mark.text, CurvePlace(0, mark.share), Side::LeftOf);
    }
    AddMark("Label6", "Current %", CurveStripMiddle(), Side::Below);
    AddMark("Label7", "Deflection %:", CurvePlace(0, 1), Side::Above);
    for (int point = 0; point < kCurvePoints; ++point) {
        const std::string name = "Image" + std::to_string(point);
        handles_.at(static_cast<std::size_t>(point)) =
            new CurveHandle(name.c_str(), QStringLiteral("Point %1").arg(point), this);
    }
}

void CurvePicture::AddMark(const char* name, const char* text, SurfacePoint at, Side side) {
    QLabel* label = MakeLabel(name, QString::fromUtf8(text));
    label->setParent(this);
    QPalette paper; // the plot is white on every desktop
    paper.setColor(QPalette::WindowText, Qt::black);
    label->setPalette(paper);
    marks_.push_back({label, at, side});
}

void CurvePicture::PlaceHandles() {
    for (int point = 0; point < kCurvePoints; ++point) {
        places_.at(static_cast<std::size_t>(point)) = HandleMiddle(Design, point);
    }
    PlaceMarks();
}

// At every size of the picture.
void CurvePicture::PlaceMarks() {
    for (std::size_t point = 0; point < handles_.size(); ++point) {
        const QPointF at = Near(ToWidget(places_.at(point).x, places_.at(point).y));
        CurveHandle& handle = *handles_.at(point);
        handle.move((at - QPointF(handle.rect().center())).toPoint());
    }
    for (const Mark& mark : marks_) {
        PlaceMark(mark);
    }
}

// Beside its point, and on the picture.
void CurvePicture::PlaceMark(const Mark& mark) const {
    mark.label->adjustSize();
    QRect box(QPoint(), mark.label->size());
    const QPoint at = ToWidget(mark.at.x, mark.at.y).toPoint();
    box.moveCenter(at);
    switch (mark.side) {
    case Side::Below:
        box.moveTop(at.y() + kFromAxis);
        break;
    case Side::LeftOf:
        box.moveRight(at.x() - kFromAxis);
        break;
    case Side::Above: // and above the mark at the left
        box.moveBottom(at.y() - box.height() / 2 - kFromAxis);
        break;
    }
    box.moveLeft(std::clamp(box.left(), 0, std::max(width() - box.width(), 0)));
    mark.label->move(box.topLeft());
}

void CurvePicture::MoveHandle(int point, SurfacePoint at) {
    places_.at(static_cast<std::size_t>(point)) = at;
    PlaceMarks();
}

bool CurvePicture::IsSurface(const QPoint& at, const QWidget& handle) const {
    for (const auto* part : findChildren<QWidget*>(Qt::FindDirectChildrenOnly)) {
        if (part != &handle && part->geometry().contains(at)) {
            return false;
        }
    }
    return rect().contains(at);
}

SurfacePoint CurvePicture::PlotPlace(const QPoint& at) const {
    const QPointF place = FromWidget(at);
    return {place.x(), place.y()};
}

void CurvePicture::resizeEvent(QResizeEvent* event) {
    PictureBox::resizeEvent(event);
    PlaceMarks();
}

} // namespace vernacle
