// A picture on a page: shows a part of the logical drawing area, keeps what was drawn on it, and
// paints it anew at whatever size the page gives it.
#pragma once

#include <QWidget>

#include "engine/geometry/logicalarea.h"
#include "surfaces/drawingrecord.h"

namespace vernacle {

// The shape of a logical unit. That of the screen makes an aspect entry mean the same in every
// window; a square one shows an illustration undistorted, and the same on every screen.
enum class UnitShape { OfScreen, Square };

class PictureBox : public QWidget {
    Q_OBJECT

public:
    PictureBox(const char* name, const LogicalArea& area, UnitShape shape,
               QWidget* parent = nullptr);

    // From the next drawing on the picture is that part of a printer's page, in square units.
    void ShowPage(const LogicalArea& area);

    DrawingSurface& Surface() { return record_; }
    const DrawingRecord& Record() const { return record_; }

    QSize sizeHint() const override;

    // Between the drawing's coordinates and those of this widget.
    QPointF ToWidget(double x, double y) const;
    QPointF FromWidget(const QPointF& at) const;

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    DeviceMap MapToWidget() const;

    LogicalArea area_;
    UnitShape shape_;
    bool showsPage_ = false;
    DrawingRecord record_;
};

} // namespace vernacle
