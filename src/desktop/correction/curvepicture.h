// The plot on the correction page: the drawing, with the marks of its axes and the handles upon it.
#pragma once

#include <array>
#include <vector>

#include "desktop/kit/picturebox.h"
#include "engine/core/design.h"
#include "engine/geometry/geometry.h"

class QLabel;

namespace vernacle {

class CurveHandle;

class CurvePicture : public PictureBox {
    Q_OBJECT

public:
    CurvePicture();

    CurveHandle& Handle(int point) { return *handles_.at(static_cast<std::size_t>(point)); }

    // Puts the handles onto the points of the curve.
    void PlaceHandles();

    // Puts one handle's middle there, wherever its point is.
    void MoveHandle(int point, SurfacePoint at);

    // Whether the place is on the plot's surface and on no control but that handle.
    bool IsSurface(const QPoint& at, const QWidget& handle) const;

    // Where a place on this widget lies in the plot.
    SurfacePoint PlotPlace(const QPoint& at) const;

protected:
    void resizeEvent(QResizeEvent* event) override;

private:
    // Of its point.
    enum class Side { Below, LeftOf, Above };

    struct Mark {
        QLabel* label = nullptr;
        SurfacePoint at = {};
        Side side = Side::Below;
    };

    void AddMark(const char* name, const char* text, SurfacePoint at, Side side);
    void PlaceMarks();
    void PlaceMark(const Mark& mark) const;

    std::array<CurveHandle*, kCurvePoints> handles_{};
    std::array<SurfacePoint, kCurvePoints> places_{}; // of the handles' middles
    std::vector<Mark> marks_;
};

} // namespace vernacle
