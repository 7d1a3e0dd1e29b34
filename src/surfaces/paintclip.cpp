#include "surfaces/paintclip.h"

#include <algorithm>
#include <cmath>
#include <numbers>
#include <optional>

namespace vernacle {

namespace {

constexpr double kTurn = 2 * std::numbers::pi;

// How far a chord may leave its arc, painter coordinates.
constexpr double kChordError = 1. / 64;

struct Segment {
    QPointF from;
    QPointF to;
};

// Of one axis: the shares of the way at which it enters and leaves.
struct Shares {
    double enters = 0;
    double leaves = 1;
};

std::optional<Shares> SharesWithin(double start, double step, double low, double high) {
    if (step == 0) {
        return start < low || start > high ? std::nullopt : std::optional(Shares());
    }
    const double atLow = (low - start) / step;
    const double atHigh = (high - start) / step;
    return Shares{std::min(atLow, atHigh), std::max(atLow, atHigh)};
}

// The part of a line that is within. An end that is within is not touched.
std::optional<Segment> PartWithin(QPointF from, QPointF to, const QRectF& rectangle) {
    const QPointF along = to - from;
    const auto across = SharesWithin(from.x(), along.x(), rectangle.left(), rectangle.right());
    const auto down = SharesWithin(from.y(), along.y(), rectangle.top(), rectangle.bottom());
    if (!across || !down) {
        return std::nullopt;
    }
    const double enters = std::max({across->enters, down->enters, 0.});
    const double leaves = std::min({across->leaves, down->leaves, 1.});
    if (enters > leaves) {
        return std::nullopt;
    }
    return Segment{enters > 0 ? from + along * enters : from,
                   leaves < 1 ? from + along * leaves : to};
}

QPointF OnCircle(QPointF centre, double radius, double angle) {
    return centre + QPointF(radius * std::cos(angle), radius * std::sin(angle));
}

// The angles at which the circle meets the four lines of the rectangle's sides, in rising order
// from -pi to a turn later.
std::vector<double> SideAngles(QPointF centre, double radius, const QRectF& rectangle) {
    std::vector<double> angles = {-std::numbers::pi};
    for (const double side : {rectangle.left(), rectangle.right()}) {
        const double share = (side - centre.x()) / radius;
        if (std::fabs(share) <= 1) {
            angles.push_back(std::acos(share));
            angles.push_back(-angles.back());
        }
    }
    for (const double side : {rectangle.top(), rectangle.bottom()}) {
        const double share = (side - centre.y()) / radius;
        if (std::fabs(share) <= 1) {
            const double angle = std::asin(share);
            angles.push_back(angle);
            angles.push_back(angle > 0 ? std::numbers::pi - angle : -std::numbers::pi - angle);
        }
    }
    std::sort(angles.begin(), angles.end());
    angles.push_back(angles.front() + kTurn);
    return angles;
}

QPolygonF Chords(QPointF centre, double radius, double from, double to) {
    constexpr double kMostChords = 4096;
    const double widest = std::sqrt(8 * kChordError / radius);
    const double chords = std::clamp(std::ceil((to - from) / widest), 1., kMostChords);
    QPolygonF points;
    for (int chord = 0; chord <= chords; ++chord) {
        points << OnCircle(centre, radius, from + (to - from) * chord / chords);
    }
    return points;
}

double Dot(QPointF a, QPointF b) {
    return QPointF::dotProduct(a, b);
}

// Draws in what of a polygon lies beyond a line through a point, on to that line: how often it
// winds about any point on this side stays the same.
void CutBeyond(QPolygonF& polygon, QPointF at, QPointF outward) {
    QPolygonF kept;
    for (int i = 0; i < polygon.size(); ++i) {
        const QPointF from = polygon[i];
        const QPointF to = polygon[(i + 1) % polygon.size()];
        const double fromBeyond = Dot(from - at, outward);
        const double toBeyond = Dot(to - at, outward);
        if (fromBeyond <= 0) {
            kept << from;
        }
        if ((fromBeyond <= 0) != (toBeyond <= 0)) {
            kept << from + (to - from) * (fromBeyond / (fromBeyond - toBeyond));
        }
    }
    polygon = kept;
}

} // namespace

bool IsWithin(const QRectF& rectangle, QPointF point) {
    return point.x() >= rectangle.left() && point.x() <= rectangle.right() &&
           point.y() >= rectangle.top() && point.y() <= rectangle.bottom();
}

bool IsWithin(const QRectF& rectangle, const QPolygonF& points) {
    return std::all_of(points.begin(), points.end(),
                       [&](QPointF point) { return IsWithin(rectangle, point); });
}

bool IsFinite(QPointF point) {
    return std::isfinite(point.x()) && std::isfinite(point.y());
}

QRectF Clamped(const QRectF& box, const QRectF& rectangle) {
    const auto drawnIn = [&](QPointF corner) {
        return QPointF(std::clamp(corner.x(), rectangle.left(), rectangle.right()),
                       std::clamp(corner.y(), rectangle.top(), rectangle.bottom()));
    };
    if (IsWithin(rectangle, box.topLeft()) && IsWithin(rectangle, box.bottomRight())) {
        return box;
    }
    return {drawnIn(box.topLeft()), drawnIn(box.bottomRight())};
}

std::vector<QPolygonF> PartsWithin(const QPolygonF& line, const QRectF& rectangle) {
    if (IsWithin(rectangle, line)) {
        return {line};
    }
    std::vector<QPolygonF> parts;
    for (int point = 1; point < line.size(); ++point) {
        const auto part = PartWithin(line[point - 1], line[point], rectangle);
        if (!part) {
            continue;
        }
        if (parts.empty() || parts.back().last() != part->from) {
            parts.push_back({part->from});
        }
        parts.back() << part->to;
    }
    return parts;
}

std::vector<QPolygonF> ArcsWithin(QPointF centre, double radius, const QRectF& rectangle) {
    std::vector<QPolygonF> arcs;
    const std::vector<double> angles = SideAngles(centre, radius, rectangle);
    for (std::size_t i = 1; i < angles.size(); ++i) {
        const double middle = (angles[i - 1] + angles[i]) / 2;
        if (IsWithin(rectangle, OnCircle(centre, radius, middle))) {
            arcs.push_back(Chords(centre, radius, angles[i - 1], angles[i]));
        }
    }
    return arcs;
}

QPainterPath BandWithin(const QPainterPath& line, const QPen& pen, const QRectF& rectangle) {
    QPainterPath band;
    band.setFillRule(Qt::WindingFill);
    for (QPolygonF outline : QPainterPathStroker(pen).createStroke(line).toSubpathPolygons()) {
        CutBeyond(outline, rectangle.topLeft(), {-1, 0});
        CutBeyond(outline, rectangle.topLeft(), {0, -1});
        CutBeyond(outline, rectangle.bottomRight(), {1, 0});
        CutBeyond(outline, rectangle.bottomRight(), {0, 1});
        band.addPolygon(outline);
        band.closeSubpath();
    }
    return band;
}

} // namespace vernacle
