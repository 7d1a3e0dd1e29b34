// The target of all drawing. Coordinates are the surface's logical units with y growing downward,
// colours 0x00BBGGRR. A failure of a font or a device is a RunTimeError.
#pragma once

#include <cstdint>
#include <span>
#include <string>

#include "engine/geometry/surfacepoint.h"

namespace vernacle {

using Colour = std::int32_t;

constexpr Colour kBlackInk = 0x000000;
constexpr Colour kWhiteInk = 0xFFFFFF;
constexpr Colour kBlueInk = 0xFF0000;

// Which of its points a placed text has at its place: of the width of its letters, and of the
// height of its capitals above the line they stand on.
enum class TextAnchor { Middle, TopMiddle, TopLeft };

struct TextPlace {
    SurfacePoint at;
    TextAnchor anchor = TextAnchor::Middle;
    double em = 0;      // the size of the letters, in units
    double turnRad = 0; // about its place, counter-clockwise
    std::string face;
};

class DrawingSurface {
public:
    virtual ~DrawingSurface() = default;

    virtual void Clear() = 0;
    virtual void SetLineWidth(int pixels) = 0;    // of later lines, boxes and circles; 1 or more
    virtual void SetForeColor(Colour colour) = 0; // of later text

    // In place of SetLineWidth: exactly so many units across.
    virtual void SetLineThickness(double units) = 0;

    // A straight line with flat ends; the current position ends at (x2, y2). A line that starts at
    // the current position with the same width and colour joins the one before it. Equal ends paint
    // one dot.
    virtual void Line(float x1, float y1, float x2, float y2, Colour colour) = 0;
    virtual void Box(float x1, float y1, float x2, float y2, Colour colour) = 0;
    virtual void FilledBox(float x1, float y1, float x2, float y2, Colour colour) = 0;

    // The shape between these corners, filled; fewer than three are none.
    virtual void FillArea(std::span<const SurfacePoint> corners, Colour colour) = 0;

    // r counts units across; the circle is round on the device.
    virtual void Circle(float x, float y, float r, Colour colour) = 0;

    // The top left corner of the next text.
    virtual void SetCurrentX(float x) = 0;
    virtual void SetCurrentY(float y) = 0;
    virtual float GetCurrentX() const = 0;
    virtual float GetCurrentY() const = 0;

    virtual void Dot(float x, float y, Colour colour) = 0; // and makes it the current position
    virtual void PrintText(const std::string& text) = 0;   // in the selected font, never clipped

    // The ordinary font, which also measures, whatever font BeginFont has selected.
    virtual void SetFontName(const std::string& name) = 0;
    virtual void SetFontSize(double points) = 0;
    virtual float TextWidth(const std::string& text) const = 0;
    virtual float TextHeight(const std::string& text) const = 0;

    // Selects a made font until EndFont: height in pixels, of the cell if positive and of the
    // character if negative; width the average character width in pixels, 0 for the natural one;
    // escapement in tenths of a degree counter-clockwise about the text's top left corner.
    virtual void BeginFont(int height, int width, int escapement, const std::string& face) = 0;
    virtual void EndFont() = 0;

    // A text in true measure, whatever font is selected.
    virtual void PlaceText(const std::string& text, const TextPlace& place) = 0;

    // Draws a picture file stretched into a box; one that does not load is a RunTimeError.
    virtual void PaintPicture(const std::string& file, float x, float y, float width,
                              float height) = 0;
};

// What a printer offers beyond that. Its page is a logical area of 11500 x 15200 units, whatever
// the paper; line widths count its own pixels.
class PrinterSurface : public DrawingSurface {
public:
    // The logical area's part from top to bottom holds what must not be lost. Of the next document
    // the area as a whole, turned labels too, is moved down the sheet by what that part needs at
    // the sheet's upper edge, as far as the sheet has room below it.
    virtual void KeepOnSheet(float top, float bottom) = 0;

    // Whether it ends on a device, whose calibration then holds, and not in a file.
    virtual bool IsDevice() const { return false; }

    virtual void StartSheet() = 0; // a new document with the logical area set
    virtual void EndDoc() = 0;     // sends the document; a RunTimeError if that fails

    // The size of a device pixel in twips.
    virtual float TwipsPerPixelX() const = 0;
    virtual float TwipsPerPixelY() const = 0;

    // Writes in the made font at device pixels, counted from the corner of the logical area.
    virtual void TextOutA(int xPixels, int yPixels, const std::string& text) = 0;
};

} // namespace vernacle
