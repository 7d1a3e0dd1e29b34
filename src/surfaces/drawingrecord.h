// A drawing kept as its calls, so that it can be painted again at any size and on any device. Texts
// are measured as on the whole screen: what is measured is the same at every zoom.
#pragma once

#include <functional>
#include <string>
#include <vector>

#include <QPainter>

#include "surfaces/paintersurface.h"

namespace vernacle {

class DrawingRecord : public DrawingSurface {
public:
    // changed is called behind each call that shows.
    DrawingRecord(const DeviceMap& wholeScreen, std::function<void()> changed);

    // Makes all the calls kept since the last Clear, that Clear included.
    void Replay(DrawingSurface& surface) const;

    void Clear() override;
    void SetLineWidth(int pixels) override;
    void SetForeColor(Colour colour) override;
    void SetLineThickness(double units) override;
    void Line(float x1, float y1, float x2, float y2, Colour colour) override;
    void Box(float x1, float y1, float x2, float y2, Colour colour) override;
    void FilledBox(float x1, float y1, float x2, float y2, Colour colour) override;
    void FillArea(std::span<const SurfacePoint> corners, Colour colour) override;
    void Circle(float x, float y, float r, Colour colour) override;
    void SetCurrentX(float x) override;
    void SetCurrentY(float y) override;
    float GetCurrentX() const override { return currentX_; }
    float GetCurrentY() const override { return currentY_; }
    void Dot(float x, float y, Colour colour) override;
    void PrintText(const std::string& text) override;
    void SetFontName(const std::string& name) override;
    void SetFontSize(double points) override;
    float TextWidth(const std::string& text) const override { return measure_.TextWidth(text); }
    float TextHeight(const std::string& text) const override { return measure_.TextHeight(text); }
    void BeginFont(int height, int width, int escapement, const std::string& face) override;
    void EndFont() override;
    void PlaceText(const std::string& text, const TextPlace& place) override;
    void PaintPicture(const std::string& file, float x, float y, float width,
                      float height) override;

private:
    using Call = std::function<void(DrawingSurface&)>;

    void Keep(Call call);

    QPainter idle_; // measuring paints nothing
    PainterSurface measure_;
    std::function<void()> changed_;
    std::vector<Call> calls_;
    float currentX_ = 0;
    float currentY_ = 0;
};

} // namespace vernacle
