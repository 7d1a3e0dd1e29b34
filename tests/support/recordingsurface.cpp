#include "support/recordingsurface.h"

#include <algorithm>
#include <iterator>
#include <sstream>

#include "engine/base/runtimeerror.h"
#include "engine/base/text.h"

namespace vernacle::test {

namespace {

template <typename... Arguments>
std::string Words(const Arguments&... arguments) {
    std::ostringstream line;
    line.imbue(std::locale::classic());
    line.precision(9);
    ((line << ' ' << arguments), ...);
    return line.str();
}

std::string Hex(Colour colour) {
    std::ostringstream text;
    text.imbue(std::locale::classic());
    text << std::hex << colour;
    return text.str();
}

std::string Quoted(const std::string& text) {
    return "[" + text.substr(0, text.find('\0')) + "]";
}

} // namespace

void RecordingSurface::Record(const std::string& name, const std::string& arguments) {
    calls.push_back(name + arguments);
    if (static_cast<int>(calls.size()) == failAt || name == failCall) {
        throw RunTimeError("the surface failed");
    }
}

void RecordingSurface::Forget() {
    calls.clear();
    texts.clear();
    keptTop = keptBottom = 0;
    x_ = y_ = 0;
    points_ = 0;
}

std::vector<std::string> RecordingSurface::CallsOf(const std::string& name) const {
    std::vector<std::string> found;
    std::copy_if(
        calls.begin(), calls.end(), std::back_inserter(found),
        [&](const std::string& call) { return call == name || call.starts_with(name + " "); });
    return found;
}

void RecordingSurface::Clear() {
    Record("Clear", "");
}
void RecordingSurface::SetLineWidth(int pixels) {
    Record("SetLineWidth", Words(pixels));
}
void RecordingSurface::SetForeColor(Colour colour) {
    Record("SetForeColor", Words(Hex(colour)));
}
void RecordingSurface::Line(float x1, float y1, float x2, float y2, Colour colour) {
    x_ = x2;
    y_ = y2;
    Record("Line", Words(x1, y1, x2, y2, Hex(colour)));
}
void RecordingSurface::Box(float x1, float y1, float x2, float y2, Colour colour) {
    Record("Box", Words(x1, y1, x2, y2, Hex(colour)));
}
void RecordingSurface::FilledBox(float x1, float y1, float x2, float y2, Colour colour) {
    Record("FilledBox", Words(x1, y1, x2, y2, Hex(colour)));
}
void RecordingSurface::SetLineThickness(double units) {
    Record("SetLineThickness", Words(units));
}

void RecordingSurface::FillArea(std::span<const SurfacePoint> corners, Colour colour) {
    std::string words;
    for (const SurfacePoint& corner : corners) {
        words += Words(corner.x, corner.y) + " ";
    }
    Record("FillArea", words + Hex(colour));
}

void RecordingSurface::PlaceText(const std::string& text, const TextPlace& place) {
    Record("PlaceText", Words(Quoted(text), place.at.x, place.at.y, static_cast<int>(place.anchor),
                              place.em, place.turnRad, Quoted(place.face)));
    texts.push_back(text);
}

void RecordingSurface::Circle(float x, float y, float r, Colour colour) {
    Record("Circle", Words(x, y, r, Hex(colour)));
}
void RecordingSurface::SetCurrentX(float x) {
    x_ = x;
    Record("SetCurrentX", Words(x));
}
void RecordingSurface::SetCurrentY(float y) {
    y_ = y;
    Record("SetCurrentY", Words(y));
}
void RecordingSurface::Dot(float x, float y, Colour colour) {
    x_ = x;
    y_ = y;
    Record("Dot", Words(x, y, Hex(colour)));
}
void RecordingSurface::PrintText(const std::string& text) {
    texts.push_back(text);
    Record("PrintText", Words(Quoted(text)));
}
void RecordingSurface::SetFontName(const std::string& name) {
    Record("SetFontName", Words(Quoted(name)));
}
void RecordingSurface::SetFontSize(double points) {
    points_ = points;
    Record("SetFontSize", Words(points));
}
float RecordingSurface::TextWidth(const std::string& text) const {
    return static_cast<float>(points_) * kUnitsAcross * static_cast<float>(CharacterCount(text));
}
float RecordingSurface::TextHeight(const std::string& /*text*/) const {
    return static_cast<float>(points_) * kUnitsDown;
}
void RecordingSurface::BeginFont(int height, int width, int escapement, const std::string& face) {
    Record("BeginFont", Words(height, width, escapement, Quoted(face)));
}
void RecordingSurface::EndFont() {
    Record("EndFont", "");
}
void RecordingSurface::PaintPicture(const std::string& file, float x, float y, float width,
                                    float height) {
    if (picturesFail) {
        throw RunTimeError("no such picture");
    }
    Record("PaintPicture", Words(Quoted(file), x, y, width, height));
}
void RecordingSurface::KeepOnSheet(float top, float bottom) {
    keptTop = top;
    keptBottom = bottom;
}

void RecordingSurface::StartSheet() {
    Record("StartSheet", "");
}
void RecordingSurface::EndDoc() {
    Record("EndDoc", "");
}
void RecordingSurface::TextOutA(int xPixels, int yPixels, const std::string& text) {
    texts.push_back(text);
    Record("TextOutA", Words(xPixels, yPixels, Quoted(text)));
}

} // namespace vernacle::test
