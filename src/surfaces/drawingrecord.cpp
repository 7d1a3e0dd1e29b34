#include "surfaces/drawingrecord.h"

#include "engine/base/runtimeerror.h"
#include "surfaces/picturefile.h"

#include <utility>

namespace vernacle {

DrawingRecord::DrawingRecord(const DeviceMap& wholeScreen, std::function<void()> changed)
    : measure_(idle_, wholeScreen), changed_(std::move(changed)) {}

void DrawingRecord::Replay(DrawingSurface& surface) const {
    for (const Call& call : calls_) {
        call(surface);
    }
}

void DrawingRecord::Keep(Call call) {
    calls_.push_back(std::move(call));
    changed_();
}

void DrawingRecord::Clear() {
    calls_.clear();
    Keep([](DrawingSurface& surface) { surface.Clear(); });
}

void DrawingRecord::SetLineWidth(int pixels) {
    Keep([=](DrawingSurface& surface) { surface.SetLineWidth(pixels); });
}

void DrawingRecord::SetForeColor(Colour colour) {
    Keep([=](DrawingSurface& surface) { surface.SetForeColor(colour); });
}

void DrawingRecord::SetLineThickness(double units) {
    Keep([=](DrawingSurface& surface) { surface.SetLineThickness(units); });
}

void DrawingRecord::Line(float x1, float y1, float x2, float y2, Colour colour) {
    currentX_ = x2;
    currentY_ = y2;
    Keep([=](DrawingSurface& surface) { surface.Line(x1, y1, x2, y2, colour); });
}

void DrawingRecord::Box(float x1, float y1, float x2, float y2, Colour colour) {
    Keep([=](DrawingSurface& surface) { surface.Box(x1, y1, x2, y2, colour); });
}

void DrawingRecord::FilledBox(float x1, float y1, float x2, float y2, Colour colour) {
    Keep([=](DrawingSurface& surface) { surface.FilledBox(x1, y1, x2, y2, colour); });
}

void DrawingRecord::FillArea(std::span<const SurfacePoint> corners, Colour colour) {
    Keep([kept = std::vector(corners.begin(), corners.end()), colour](DrawingSurface& surface) {
        surface.FillArea(kept, colour);
    });
}

void DrawingRecord::Circle(float x, float y, float r, Colour colour) {
    Keep([=](DrawingSurface& surface) { surface.Circle(x, y, r, colour); });
}

void DrawingRecord::SetCurrentX(float x) {
    currentX_ = x;
    Keep([=](DrawingSurface& surface) { surface.SetCurrentX(x); });
}

void DrawingRecord::SetCurrentY(float y) {
    currentY_ = y;
    Keep([=](DrawingSurface& surface) { surface.SetCurrentY(y); });
}

void DrawingRecord::Dot(float x, float y, Colour colour) {
    currentX_ = x;
    currentY_ = y;
    Keep([=](DrawingSurface& surface) { surface.Dot(x, y, colour); });
}

void DrawingRecord::PrintText(const std::string& text) {
    Keep([=](DrawingSurface& surface) { surface.PrintText(text); });
}

void DrawingRecord::SetFontName(const std::string& name) {
    measure_.SetFontName(name);
    Keep([=](DrawingSurface& surface) { surface.SetFontName(name); });
}

void DrawingRecord::SetFontSize(double points) {
    measure_.SetFontSize(points);
    Keep([=](DrawingSurface& surface) { surface.SetFontSize(points); });
}

void DrawingRecord::BeginFont(int height, int width, int escapement, const std::string& face) {
    Keep([=](DrawingSurface& surface) { surface.BeginFont(height, width, escapement, face); });
}

void DrawingRecord::EndFont() {
    Keep([](DrawingSurface& surface) { surface.EndFont(); });
}

void DrawingRecord::PlaceText(const std::string& text, const TextPlace& place) {
    Keep([=](DrawingSurface& surface) { surface.PlaceText(text, place); });
}

void DrawingRecord::PaintPicture(const std::string& file, float x, float y, float width,
                                 float height) {
    LoadPicture(file); // one that does not load fails here, where the drawing deals with it
    Keep([=](DrawingSurface& surface) {
        try {
            surface.PaintPicture(file, x, y, width, height);
        } catch (const RunTimeError&) {
            // The file has gone since.
        }
    });
}

} // namespace vernacle
