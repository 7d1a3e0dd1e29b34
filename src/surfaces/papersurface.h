// A printer over a paint device: a sheet of paper in a PDF, an SVG or a real printer's job. One
// page unit is 1/56.578 mm on all of them, and the logical area of 11500 x 15200 is centred on the
// sheet; on a sheet that is shorter than the area, as a landscape one, the plate's middle is.
#pragma once

#include <QPaintDevice>

#include "surfaces/paintersurface.h"

namespace vernacle {

struct Sheet {
    const char* name;
    double widthMm;
    double heightMm;
};

constexpr Sheet kSheets[] = {
    {"A4", 210, 297},
    {"Letter", 215.9, 279.4},
};

class PaperSurface : public PrinterSurface {
public:
    // The device's coordinates begin at the sheet's corner, so many of them to the inch.
    PaperSurface(QPaintDevice& device, double coordinatesPerInch, const Sheet& sheet);
    ~PaperSurface() override;
    PaperSurface(const PaperSurface&) = delete;
    PaperSurface& operator=(const PaperSurface&) = delete;

    void KeepOnSheet(float top, float bottom) override;
    void StartSheet() override;
    void EndDoc() override;
    float TwipsPerPixelX() const override;
    float TwipsPerPixelY() const override;
    void TextOutA(int xPixels, int yPixels, const std::string& text) override;

    // As any painter draws.
    void Clear() override { page_.Clear(); }
    void SetLineWidth(int pixels) override { page_.SetLineWidth(pixels); }
    void SetForeColor(Colour colour) override { page_.SetForeColor(colour); }
    void SetLineThickness(double units) override { page_.SetLineThickness(units); }
    void Line(float x1, float y1, float x2, float y2, Colour colour) override {
        page_.Line(x1, y1, x2, y2, colour);
    }
    void Box(float x1, float y1, float x2, float y2, Colour colour) override {
        page_.Box(x1, y1, x2, y2, colour);
    }
    void FilledBox(float x1, float y1, float x2, float y2, Colour colour) override {
        page_.FilledBox(x1, y1, x2, y2, colour);
    }
    void FillArea(std::span<const SurfacePoint> corners, Colour colour) override {
        page_.FillArea(corners, colour);
    }
    void Circle(float x, float y, float r, Colour colour) override {
        page_.Circle(x, y, r, colour);
    }
    void SetCurrentX(float x) override { page_.SetCurrentX(x); }
    void SetCurrentY(float y) override { page_.SetCurrentY(y); }
    float GetCurrentX() const override { return page_.GetCurrentX(); }
    float GetCurrentY() const override { return page_.GetCurrentY(); }
    void Dot(float x, float y, Colour colour) override { page_.Dot(x, y, colour); }
    void PrintText(const std::string& text) override { page_.PrintText(text); }
    void SetFontName(const std::string& name) override { page_.SetFontName(name); }
    void SetFontSize(double points) override { page_.SetFontSize(points); }
    float TextWidth(const std::string& text) const override { return page_.TextWidth(text); }
    float TextHeight(const std::string& text) const override { return page_.TextHeight(text); }
    void BeginFont(int height, int width, int escapement, const std::string& face) override {
        page_.BeginFont(height, width, escapement, face);
    }
    void EndFont() override { page_.EndFont(); }
    void PlaceText(const std::string& text, const TextPlace& place) override {
        page_.PlaceText(text, place);
    }
    void PaintPicture(const std::string& file, float x, float y, float width,
                      float height) override {
        page_.PaintPicture(file, x, y, width, height);
    }

private:
    QPaintDevice& device_;
    QPainter painter_;
    PainterSurface page_;
    double sheetBottom_; // where printing ends, the device's coordinates, as all here
    double sheetTop_;    // where it begins
    double areaTop_;     // of a logical area that is not moved
};

} // namespace vernacle
