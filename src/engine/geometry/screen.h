// The screen that drawings are made for. The corrections that centre a label over its tic grow with
// the square of the screen's size, texts with the size itself: on a large screen labels would leave
// their tics. So a drawing is made for a screen of limited width, in the shape of the real one, and
// its picture is magnified.
#pragma once

namespace vernacle {

struct DesignRecord;

constexpr double kWidestScreen = 1920; // pixels

// A screen of square units, for pictures that are the same on every real one.
constexpr int kSquareScreenWidth = 1440; // pixels
constexpr int kSquareScreenHeight = 1080;
constexpr float kSquareScreenScale = 1.8F; // its ScreenScaleX and ScreenScaleY

// How many times larger a screen of that width is than the one that is drawn for; 1 or more.
double ScreenMagnification(double widthPixels);

// ScreenScaleX and ScreenScaleY of the screen that is drawn for.
struct ScreenFactors {
    double x = 0;
    double y = 0;
};

// From those of the real screen, as the design holds them.
ScreenFactors DrawnScreen(const DesignRecord& design);

} // namespace vernacle
