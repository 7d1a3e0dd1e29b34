// A printer that writes each call as a line: what drawing tests compare. It is a DrawingSurface
// too.
#pragma once

#include <string>
#include <vector>

#include "engine/geometry/drawingsurface.h"

namespace vernacle::test {

class RecordingSurface : public PrinterSurface {
public:
    // One line a call: its name and its arguments, numbers in up to 9 significant digits, colours
    // in hexadecimal: "Line 100 200 300 400 ff0000", "SetLineWidth 2", "PrintText [10]".
    std::vector<std::string> calls;

    // The lines that begin with that word.
    std::vector<std::string> CallsOf(const std::string& name) const;
    std::size_t Count(const std::string& name) const { return CallsOf(name).size(); }
    // The texts that were printed, PrintText and TextOutA alike, in order.
    std::vector<std::string> texts;
    // What the print asked to have kept on the sheet.
    float keptTop = 0;
    float keptBottom = 0;

    // A run-time error at the call of that line's number (counted from 1), once.
    int failAt = 0;
    // A run-time error at each call of that name.
    std::string failCall;
    // Pictures load unless this is set.
    bool picturesFail = false;

    // The ordinary font measures 6 units a character and 11 units down, at each point of its size.
    static constexpr float kUnitsAcross = 6;
    static constexpr float kUnitsDown = 11;

    // Forgets what was recorded; the failures asked for stay.
    void Forget();

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
    float GetCurrentX() const override { return x_; }
    float GetCurrentY() const override { return y_; }
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
    void KeepOnSheet(float top, float bottom) override;
    void StartSheet() override;
    void EndDoc() override;
    float TwipsPerPixelX() const override { return 2.4F; } // 600 dpi
    float TwipsPerPixelY() const override { return 2.4F; }
    void TextOutA(int xPixels, int yPixels, const std::string& text) override;

private:
    void Record(const std::string& name, const std::string& arguments);

    float x_ = 0;
    float y_ = 0;
    double points_ = 0;
};

} // namespace vernacle::test
