#include "surfaces/paintersurface.h"

#include <algorithm>
#include <cmath>

#include "core/runtimeerror.h"
#include "render/screen.h"
#include "surfaces/colours.h"
#include "surfaces/picturefile.h"

namespace vernacle {

namespace {

constexpr double kScreenUnitsX = 12000;
constexpr double kScreenUnitsY = 9000;
constexpr int kUsualPoints = 8;
constexpr double kTenthsPerDegree = 10;

// Painter coordinates beyond which nothing shows on any surface. The toolkit's writers and blitters
// are not made for the distances that a damaged design can ask for.
constexpr double kFarthest = 1e6;

bool IsNear(QPointF point) {
    return std::fabs(point.x()) <= kFarthest && std::fabs(point.y()) <= kFarthest;
}

// The part of the line from a to b that is near, by the share of it that each of its four borders
// leaves; false if none is.
bool ClipToNear(QPointF& a, QPointF& b) {
    const QPointF along = b - a;
    double from = 0;
    double to = 1;
    for (const auto& [start, step] : {std::pair(a.x(), along.x()), std::pair(a.y(), along.y())}) {
        if (step == 0) {
            if (std::fabs(start) > kFarthest) {
                return false;
            }
            continue;
        }
        const double enters = (-std::copysign(kFarthest, step) - start) / step;
        const double leaves = (std::copysign(kFarthest, step) - start) / step;
        from = std::max(from, enters);
        to = std::min(to, leaves);
    }
    b = a + along * to;
    a += along * from;
    return from <= to;
}

QRectF ClampToNear(const QRectF& box) {
    if (IsNear(box.topLeft()) && IsNear(box.bottomRight())) {
        return box; // also one without width or height, which has no intersection
    }
    return box.intersected(QRectF(-kFarthest, -kFarthest, 2 * kFarthest, 2 * kFarthest));
}

bool IsStraightAlongAxis(const QPolygonF& line) {
    return line.size() == 2 && (line[0].x() == line[1].x() || line[0].y() == line[1].y());
}

} // namespace

QString ShownText(const std::string& text) {
    QString shown = QString::fromStdString(text);
    shown.removeIf([](QChar letter) { return letter.category() == QChar::Other_Control; });
    return shown;
}

DeviceMap DeviceMap::OfScreen(int widthPixels, int heightPixels) {
    DeviceMap map;
    map.perUnitX = widthPixels / kScreenUnitsX;
    map.perUnitY = heightPixels / kScreenUnitsY;
    map.perPixel = ScreenMagnification(widthPixels);
    return map;
}

PainterSurface::PainterSurface(QPainter& painter, const DeviceMap& map)
    : painter_(painter), map_(map) {
    PainterSurface::SetFontSize(kUsualPoints);
}

PainterSurface::~PainterSurface() {
    Flush();
}

QPointF PainterSurface::ToDevice(double x, double y) const {
    return {map_.originX + x * map_.perUnitX, map_.originY + y * map_.perUnitY};
}

QRectF PainterSurface::ToDevice(float x1, float y1, float x2, float y2) const {
    return QRectF(ToDevice(double{x1}, double{y1}), ToDevice(double{x2}, double{y2})).normalized();
}

QPen PainterSurface::MakePen(Colour colour, Qt::PenJoinStyle join) const {
    return {ToQColor(colour), lineWidth_ * map_.perPixel, Qt::SolidLine, Qt::FlatCap, join};
}

template <typename Paint>
void PainterSurface::PaintCrisply(Paint paint) {
    const bool smooth = painter_.testRenderHint(QPainter::Antialiasing);
    painter_.setRenderHint(QPainter::Antialiasing, false);
    paint();
    painter_.setRenderHint(QPainter::Antialiasing, smooth);
}

void PainterSurface::Flush() {
    if (chain_.size() == 1) { // a dot as wide as the line
        const double width = chainPen_.widthF();
        const QRectF dot(chain_[0] - QPointF(width, width) / 2, QSizeF(width, width));
        painter_.fillRect(dot, chainPen_.color());
    } else if (!chain_.isEmpty()) {
        painter_.setPen(chainPen_);
        if (IsStraightAlongAxis(chain_)) {
            PaintCrisply([this] { painter_.drawPolyline(chain_); });
        } else {
            painter_.drawPolyline(chain_);
        }
    }
    chain_.clear();
}

void PainterSurface::Clear() {
    chain_.clear();
    painter_.fillRect(painter_.viewport(), Qt::white);
}

void PainterSurface::SetLineWidth(int pixels) {
    lineWidth_ = std::max(pixels, 1);
}

void PainterSurface::SetForeColor(Colour colour) {
    foreColour_ = colour;
}

void PainterSurface::Line(float x1, float y1, float x2, float y2, Colour colour) {
    const QPointF from(double{x1}, double{y1});
    const QPointF to(double{x2}, double{y2});
    const QPen pen = MakePen(colour, Qt::RoundJoin);
    current_ = to;
    QPointF start = ToDevice(from.x(), from.y());
    QPointF end = ToDevice(to.x(), to.y());
    const bool isWhole = IsNear(start) && IsNear(end);
    if (!isWhole && !ClipToNear(start, end)) {
        return;
    }
    if (chain_.isEmpty() || from != chainEnd_ || pen != chainPen_ || !isWhole) {
        Flush();
        chain_ << start;
        chainPen_ = pen;
    }
    if (from != to) {
        chain_ << end;
    }
    chainEnd_ = to;
}

void PainterSurface::Box(float x1, float y1, float x2, float y2, Colour colour) {
    Flush();
    painter_.setPen(MakePen(colour, Qt::MiterJoin));
    painter_.setBrush(Qt::NoBrush);
    PaintCrisply([&] { painter_.drawRect(ClampToNear(ToDevice(x1, y1, x2, y2))); });
}

void PainterSurface::FilledBox(float x1, float y1, float x2, float y2, Colour colour) {
    Flush();
    painter_.fillRect(ClampToNear(ToDevice(x1, y1, x2, y2)), ToQColor(colour));
}

void PainterSurface::Circle(float x, float y, float r, Colour colour) {
    Flush();
    const double radius = double{r} * map_.perUnitX;
    const QPointF centre = ToDevice(double{x}, double{y});
    if (!IsNear(centre) || radius > kFarthest) {
        return;
    }
    painter_.setPen(MakePen(colour, Qt::MiterJoin));
    painter_.setBrush(Qt::NoBrush);
    painter_.drawEllipse(centre, radius, radius);
}

void PainterSurface::Dot(float x, float y, Colour colour) {
    Line(x, y, x, y, colour);
}

void PainterSurface::PrintText(const std::string& text) {
    WriteAt(ToDevice(current_.x(), current_.y()), text);
}

void PainterSurface::WriteAt(QPointF corner, const std::string& text) {
    Flush();
    const Typeface& face = Face(made_ ? madeName_ : ordinaryName_);
    const MadeFont font = made_.value_or(MadeFont{OrdinaryScale(), OrdinaryScale(), 0});
    if (font.scaleX == 0 || font.scaleY == 0 || !IsNear(corner)) {
        return;
    }
    const QTransform usual = painter_.transform();
    QTransform turned = usual;
    turned.translate(corner.x(), corner.y());
    if (font.degrees != 0) {
        turned.rotate(-font.degrees);
    }
    turned.scale(font.scaleX, font.scaleY);
    painter_.setTransform(turned);
    painter_.setFont(face.ReferenceFont());
    painter_.setPen(ToQColor(foreColour_));
    painter_.drawText(QPointF(0, face.Ascent()), ShownText(text));
    painter_.setTransform(usual);
}

const Typeface& PainterSurface::Face(const std::string& family) const {
    if (!face_ || faceName_ != family) {
        face_.emplace(family);
        faceName_ = family;
    }
    return *face_;
}

double PainterSurface::OrdinaryScale() const {
    return ordinaryPixels_ * map_.perPixel / Typeface::kReferenceSize;
}

void PainterSurface::SetFontName(const std::string& name) {
    ordinaryName_ = name;
}

void PainterSurface::SetFontSize(double points) {
    ordinaryPixels_ = std::max(RoundToInt(points * map_.pixelsPerPoint), 1);
}

float PainterSurface::TextWidth(const std::string& text) const {
    const double advance = Face(ordinaryName_).Advance(QString::fromStdString(text));
    return static_cast<float>(advance * OrdinaryScale() / map_.perUnitX);
}

float PainterSurface::TextHeight(const std::string& /*text*/) const {
    return static_cast<float>(Face(ordinaryName_).CellHeight() * OrdinaryScale() / map_.perUnitY);
}

void PainterSurface::BeginFont(int height, int width, int escapement, const std::string& face) {
    madeName_ = face.substr(0, face.find('\0'));
    const Typeface& typeface = Face(madeName_);
    const double reference = height > 0 ? typeface.CellHeight() : Typeface::kReferenceSize;
    const double scaleY = std::abs(static_cast<double>(height)) / reference * map_.perPixel;
    const double scaleX =
        width == 0 ? scaleY
                   : std::abs(static_cast<double>(width)) / typeface.AverageWidth() * map_.perPixel;
    made_ = MadeFont{scaleX, scaleY, escapement / kTenthsPerDegree};
}

void PainterSurface::EndFont() {
    made_.reset();
}

void PainterSurface::PaintPicture(const std::string& file, float x, float y, float width,
                                  float height) {
    const QImage image = LoadPicture(file);
    Flush();
    const QRectF target = ToDevice(x, y, x + width, y + height);
    const QRectF shown = target.intersected(painter_.viewport());
    if (shown.isEmpty() || !IsNear(target.topLeft()) || !IsNear(target.bottomRight())) {
        return;
    }
    const double across = image.width() / target.width(); // picture's pixels per coordinate
    const double down = image.height() / target.height();
    const QRectF source((shown.x() - target.x()) * across, (shown.y() - target.y()) * down,
                        shown.width() * across, shown.height() * down);
    painter_.drawImage(shown, image, source);
}

} // namespace vernacle
