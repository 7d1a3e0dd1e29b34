#include "surfaces/paintersurface.h"

#include <algorithm>
#include <cmath>

#include <QLineF>

#include "engine/base/runtimeerror.h"
#include "engine/geometry/screen.h"
#include "engine/geometry/sheet.h"
#include "surfaces/colours.h"
#include "surfaces/paintclip.h"
#include "surfaces/picturefile.h"
#include "surfaces/textclip.h"

namespace vernacle {

namespace {

constexpr double kScreenUnitsX = 12000;
constexpr double kScreenUnitsY = 9000;
constexpr int kUsualPoints = 8;
constexpr double kTenthsPerDegree = 10;
constexpr double kDegreesPerRadian = 57.29577951308232;

// How far beyond what is seen painting goes on, painter coordinates. What reaches out no further is
// painted whole, and so as if nothing were cut; together with the largest screen it stays well
// below what the toolkit's rasters count up to.
constexpr double kBeyond = 8192;

// Letters smaller than this, in pixels of the device, leave no trace.
constexpr double kSmallestLetters = 1. / 256;

// A wider pen's outline costs the toolkit seconds: it is cut before it is filled.
constexpr double kWidestStroke = 32768;

// A longer oblique line is painted as a single one. As an outline that is filled 361 of them cost
// seconds; up to this length the smoothing of their edges stays the same to the last bit.
constexpr double kLongestOutline = 4096;

QRectF Grown(const QRectF& box, double by) {
    return box.adjusted(-by, -by, by, by);
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

DeviceMap DeviceMap::OfPage(double perUnit) {
    DeviceMap map;
    map.perUnitX = map.perUnitY = perUnit;
    map.perPixel = perUnit * kSheetUnitsPerMm * kMmPerInch / kPrinterDpi;
    map.pixelsPerPoint = kPrinterDpi / 72;
    return map;
}

DeviceMap DeviceMap::OfPage(const LogicalArea& area, double width, double height) {
    DeviceMap map = OfPage(std::min(width / area.width, height / area.height));
    map.originX = width / 2 - (area.left + area.width / 2) * map.perUnitX;
    map.originY = height / 2 - (area.top + area.height / 2) * map.perUnitY;
    return map;
}

PainterSurface::PainterSurface(QPainter& painter, const DeviceMap& map)
    : painter_(painter), map_(map), penWidth_(map.perPixel) {
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
    return {ToQColor(colour), penWidth_, Qt::SolidLine, Qt::FlatCap, join};
}

template <typename Paint>
void PainterSurface::PaintCrisply(Paint paint) {
    const bool smooth = painter_.testRenderHint(QPainter::Antialiasing);
    painter_.setRenderHint(QPainter::Antialiasing, false);
    paint();
    painter_.setRenderHint(QPainter::Antialiasing, smooth);
}

QRectF PainterSurface::Seen() const {
    return painter_.transform().inverted().mapRect(QRectF(painter_.viewport()));
}

QRectF PainterSurface::Painted(double penWidth) const {
    return Grown(Seen(), kBeyond + penWidth / 2);
}

void PainterSurface::PaintPolyline(const QPolygonF& line) {
    if (IsStraightAlongAxis(line)) {
        PaintCrisply([&] { painter_.drawPolyline(line); });
    } else if (line.size() == 2 && QLineF(line[0], line[1]).length() > kLongestOutline) {
        painter_.drawLine(line[0], line[1]);
    } else {
        painter_.drawPolyline(line);
    }
}

void PainterSurface::FillStroke(const QPainterPath& path) {
    painter_.fillPath(BandWithin(path, painter_.pen(), Painted(0)), painter_.pen().brush());
}

void PainterSurface::FillStrokes(const std::vector<QPolygonF>& lines) {
    QPainterPath path;
    for (const QPolygonF& line : lines) {
        path.addPolygon(line);
    }
    FillStroke(path);
}

void PainterSurface::PaintChain() {
    painter_.setPen(chainPen_);
    const std::vector<QPolygonF> parts = PartsWithin(chain_, Painted(chainPen_.widthF()));
    const bool isOneLine = parts.size() == 1 && parts.front().size() == chain_.size();
    if (isOneLine && chainPen_.widthF() <= kWidestStroke) {
        PaintPolyline(parts.front());
    } else if (!parts.empty()) { // at one go, so that nothing shows where parts cross
        FillStrokes(parts);
    }
}

void PainterSurface::Flush() {
    const double width = chainPen_.widthF();
    if (chain_.size() == 1) { // a dot as wide as the line
        const QRectF dot(chain_[0] - QPointF(width, width) / 2, QSizeF(width, width));
        painter_.fillRect(Clamped(dot, Painted(0)), chainPen_.color());
    } else if (!chain_.isEmpty()) {
        PaintChain();
    }
    chain_.clear();
}

void PainterSurface::Clear() {
    chain_.clear();
    painter_.fillRect(painter_.viewport(), Qt::white);
}

void PainterSurface::SetLineWidth(int pixels) {
    penWidth_ = std::max(pixels, 1) * map_.perPixel;
}

void PainterSurface::SetLineThickness(double units) {
    penWidth_ = units * map_.perUnitX;
}

void PainterSurface::SetForeColor(Colour colour) {
    foreColour_ = colour;
}

void PainterSurface::Line(float x1, float y1, float x2, float y2, Colour colour) {
    const QPointF from(double{x1}, double{y1});
    const QPointF to(double{x2}, double{y2});
    const QPen pen = MakePen(colour, Qt::RoundJoin);
    current_ = to;
    const QPointF start = ToDevice(from.x(), from.y());
    const QPointF end = ToDevice(to.x(), to.y());
    if (!IsFinite(start) || !IsFinite(end)) {
        return;
    }
    if (chain_.isEmpty() || from != chainEnd_ || pen != chainPen_) {
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
    const QPen pen = MakePen(colour, Qt::MiterJoin);
    painter_.setPen(pen);
    painter_.setBrush(Qt::NoBrush);
    const QRectF box = Clamped(ToDevice(x1, y1, x2, y2), Painted(pen.widthF()));
    if (pen.widthF() > kWidestStroke) {
        QPainterPath path;
        path.addRect(box);
        PaintCrisply([&] { FillStroke(path); });
    } else {
        PaintCrisply([&] { painter_.drawRect(box); });
    }
}

void PainterSurface::FilledBox(float x1, float y1, float x2, float y2, Colour colour) {
    Flush();
    painter_.fillRect(Clamped(ToDevice(x1, y1, x2, y2), Painted(0)), ToQColor(colour));
}

void PainterSurface::FillArea(std::span<const SurfacePoint> corners, Colour colour) {
    Flush();
    QPolygonF area;
    for (const SurfacePoint& corner : corners) {
        area << ToDevice(corner.x, corner.y);
    }
    if (area.size() < 3 || !std::all_of(area.begin(), area.end(), IsFinite)) {
        return;
    }
    QPainterPath shape;
    shape.addPolygon(area);
    shape.closeSubpath();
    const QRectF painted = Painted(0);
    if (!painted.contains(area.boundingRect())) {
        QPainterPath window;
        window.addRect(painted);
        shape = shape.intersected(window);
    }
    painter_.fillPath(shape, ToQColor(colour));
}

void PainterSurface::Circle(float x, float y, float r, Colour colour) {
    Flush();
    const double radius = double{r} * map_.perUnitX;
    const QPointF centre = ToDevice(double{x}, double{y});
    const QPen pen = MakePen(colour, Qt::MiterJoin);
    painter_.setPen(pen);
    painter_.setBrush(Qt::NoBrush);
    const QRectF painted = Painted(pen.widthF());
    const QPointF corner(radius, radius);
    if (!IsFinite(centre - corner) || !IsFinite(centre + corner)) {
        return;
    }
    if (pen.widthF() > kWidestStroke) {
        QPainterPath path;
        path.addEllipse(centre, radius, radius);
        FillStroke(path);
    } else if (IsWithin(painted, centre - corner) && IsWithin(painted, centre + corner)) {
        painter_.drawEllipse(centre, radius, radius);
    } else {
        FillStrokes(ArcsWithin(centre, std::fabs(radius), painted));
    }
}

void PainterSurface::Dot(float x, float y, Colour colour) {
    Line(x, y, x, y, colour);
}

void PainterSurface::PrintText(const std::string& text) {
    WriteAt(ToDevice(current_.x(), current_.y()), text);
}

void PainterSurface::WriteAt(QPointF corner, const std::string& text) {
    const MadeFont font = made_.value_or(MadeFont{OrdinaryScale(), OrdinaryScale(), 0});
    Write(text, made_ ? madeName_ : ordinaryName_, font, corner, {});
}

void PainterSurface::PlaceText(const std::string& text, const TextPlace& place) {
    const Typeface& face = Face(place.face);
    const double scale = place.em * map_.perUnitX / Typeface::kReferenceSize;
    const bool fromLeft = place.anchor == TextAnchor::TopLeft;
    const double across = fromLeft ? 0 : face.Advance(ShownText(text)) / 2;
    const double capitals =
        place.anchor == TextAnchor::Middle ? face.CapHeight() / 2 : face.CapHeight();
    Write(text, place.face, {scale, scale, place.turnRad * kDegreesPerRadian},
          ToDevice(place.at.x, place.at.y), {across, face.Ascent() - capitals});
}

void PainterSurface::Write(const std::string& text, const std::string& family, const MadeFont& font,
                           QPointF at, QPointF inReference) {
    Flush();
    const Typeface& face = Face(family);
    const double smallest = kSmallestLetters / Typeface::kReferenceSize;
    if (font.scaleX < smallest || font.scaleY < smallest || !IsFinite(at)) {
        return;
    }
    QTransform turned;
    turned.translate(at.x(), at.y());
    if (font.degrees != 0) {
        turned.rotate(-font.degrees);
    }
    turned.scale(font.scaleX, font.scaleY);
    turned.translate(-inReference.x(), -inReference.y());
    const TextView view = {turned.inverted().mapRect(Painted(0)),
                           turned.inverted().mapRect(Seen())};
    const QTransform usual = painter_.transform();
    painter_.setTransform(turned * usual);
    painter_.setFont(face.ReferenceFont());
    painter_.setPen(ToQColor(foreColour_));
    for (const TextPart& part : PartsInView(ShownText(text), face, view)) {
        painter_.drawText(QPointF(part.offset, face.Ascent()), part.text);
    }
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
    const QRectF shown = target.intersected(Seen());
    if (shown.isEmpty() || !IsFinite(target.topLeft()) || !IsFinite(target.bottomRight())) {
        return;
    }
    const double across = image.width() / target.width(); // picture's pixels per coordinate
    const double down = image.height() / target.height();
    const QRectF source((shown.x() - target.x()) * across, (shown.y() - target.y()) * down,
                        shown.width() * across, shown.height() * down);
    painter_.drawImage(shown, image, source);
}

} // namespace vernacle
