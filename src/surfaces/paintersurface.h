// A drawing surface over a painter: the screen, a picture, and, with PaperSurface, a sheet.
#pragma once

#include <optional>
#include <string>
#include <vector>

#include <QPainter>
#include <QPainterPath>
#include <QPolygonF>

#include "engine/geometry/drawingsurface.h"
#include "engine/geometry/logicalarea.h"
#include "surfaces/typeface.h"

namespace vernacle {

constexpr double kMmPerInch = 25.4;

// On paper line widths, made fonts and turned labels count device pixels of this many to the inch.
constexpr double kPrinterDpi = 600;

// From the logical units of a surface to the coordinates of its painter: the one place where
// device units exist.
struct DeviceMap {
    double perUnitX = 1; // painter coordinates per logical unit
    double perUnitY = 1;
    double originX = 0; // of the logical area, painter coordinates
    double originY = 0;
    double perPixel = 1; // painter coordinates per pixel of line widths and fonts
    double pixelsPerPoint = 96. / 72.;

    // The whole logical area of 12000 x 9000 units in a picture of that size. Line widths and fonts
    // are those of a screen of limited width, magnified.
    static DeviceMap OfScreen(int widthPixels, int heightPixels);

    // Of a printer's page, its corner at the origin, so many painter coordinates to its unit: line
    // widths and letters count the pixels of a printer of 600 dpi.
    static DeviceMap OfPage(double perUnit);

    // That area of a printer's page, as large as a picture of that size shows it whole, and in the
    // picture's middle.
    static DeviceMap OfPage(const LogicalArea& area, double width, double height);
};

// The text without its control characters: they have no shape, and an SVG that holds one is no XML.
QString ShownText(const std::string& text);

class PainterSurface : public DrawingSurface {
public:
    // The painter may begin later than the surface, but before the first drawing call.
    PainterSurface(QPainter& painter, const DeviceMap& map);
    ~PainterSurface() override;
    PainterSurface(const PainterSurface&) = delete;
    PainterSurface& operator=(const PainterSurface&) = delete;

    // Paints what is still held back; see Line.
    void Flush();

    void Clear() override;
    void SetLineWidth(int pixels) override;
    void SetForeColor(Colour colour) override;
    void SetLineThickness(double units) override;
    // Held back while lines continue each other: they are painted as one, with round joins.
    void Line(float x1, float y1, float x2, float y2, Colour colour) override;
    void Box(float x1, float y1, float x2, float y2, Colour colour) override;
    void FilledBox(float x1, float y1, float x2, float y2, Colour colour) override;
    void FillArea(std::span<const SurfacePoint> corners, Colour colour) override;
    void Circle(float x, float y, float r, Colour colour) override;
    void SetCurrentX(float x) override { current_.setX(double{x}); }
    void SetCurrentY(float y) override { current_.setY(double{y}); }
    float GetCurrentX() const override { return static_cast<float>(current_.x()); }
    float GetCurrentY() const override { return static_cast<float>(current_.y()); }
    void Dot(float x, float y, Colour colour) override;
    void PrintText(const std::string& text) override;
    void SetFontName(const std::string& name) override;
    void SetFontSize(double points) override;
    float TextWidth(const std::string& text) const override;
    float TextHeight(const std::string& text) const override;
    void BeginFont(int height, int width, int escapement, const std::string& face) override;
    void EndFont() override;
    void PlaceText(const std::string& text, const TextPlace& place) override;
    void PaintPicture(const std::string& file, float x, float y, float width,
                      float height) override;

    // Writes in the selected font, with the text's top left corner at painter coordinates.
    void WriteAt(QPointF corner, const std::string& text);

    const DeviceMap& Map() const { return map_; }
    void SetOriginY(double originY) { map_.originY = originY; }

private:
    // A font as it is asked for: scales from the reference font to painter coordinates.
    struct MadeFont {
        double scaleX;
        double scaleY;
        double degrees; // counter-clockwise
    };

    // Writes in that font, whose own top left corner (of the reference font) is put at `at`.
    void Write(const std::string& text, const std::string& family, const MadeFont& font, QPointF at,
               QPointF inReference);

    // Without smoothing: upright and level lines stay crisp, and one over another covers it.
    template <typename Paint>
    void PaintCrisply(Paint paint);

    // What is seen, and what is painted with a pen of that width: a little more. Painter
    // coordinates.
    QRectF Seen() const;
    QRectF Painted(double penWidth) const;
    void PaintChain();
    void PaintPolyline(const QPolygonF& line);

    // As the painter's pen would stroke them, its outline cut before it is filled.
    void FillStroke(const QPainterPath& path);
    void FillStrokes(const std::vector<QPolygonF>& lines);

    QPointF ToDevice(double x, double y) const;
    QRectF ToDevice(float x1, float y1, float x2, float y2) const;
    QPen MakePen(Colour colour, Qt::PenJoinStyle join) const;
    const Typeface& Face(const std::string& family) const;
    double OrdinaryScale() const; // from the reference font to painter coordinates

    QPainter& painter_;
    DeviceMap map_;
    double penWidth_; // painter coordinates
    Colour foreColour_ = kBlackInk;
    QPointF current_;        // logical
    int ordinaryPixels_ = 0; // character height
    std::string ordinaryName_ = "Arial";
    std::optional<MadeFont> made_;
    std::string madeName_;
    mutable std::string faceName_; // of face_, the family that was asked for last
    mutable std::optional<Typeface> face_;

    QPolygonF chain_;  // of lines that continue each other, painter coordinates
    QPointF chainEnd_; // logical
    QPen chainPen_;
};

} // namespace vernacle
