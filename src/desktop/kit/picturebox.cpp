#include "desktop/kit/picturebox.h"

#include <algorithm>
#include <cmath>

#include "engine/base/hostservices.h"
#include "engine/geometry/screen.h"

namespace vernacle {

namespace {

constexpr QSize kSmallestPicture(280, 220);
constexpr int kUsualHeight = 420; // pixels

// That of a whole screen with units of that shape.
DeviceMap ScreenMap(UnitShape shape) {
    if (shape == UnitShape::Square) {
        return DeviceMap::OfScreen(kSquareScreenWidth, kSquareScreenHeight);
    }
    const ScreenSize screen = Host.screenSize();
    const auto pixels = [](float twips) {
        return static_cast<int>(std::lround(double{twips} / kTwipsPerPixel));
    };
    return DeviceMap::OfScreen(pixels(screen.widthTwips), pixels(screen.heightTwips));
}

} // namespace

PictureBox::PictureBox(const char* name, const LogicalArea& area, UnitShape shape, QWidget* parent)
    : QWidget(parent), area_(area), shape_(shape), record_(ScreenMap(shape), [this] { update(); }) {
    setObjectName(QLatin1String(name));
    setAttribute(Qt::WA_OpaquePaintEvent);
    setMinimumSize(kSmallestPicture);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
}

void PictureBox::ShowPage(const LogicalArea& area) {
    area_ = area;
    showsPage_ = true;
}

QSize PictureBox::sizeHint() const {
    const DeviceMap map = MapToWidget();
    const double widthToHeight = area_.width * map.perUnitX / (area_.height * map.perUnitY);
    return {static_cast<int>(kUsualHeight * widthToHeight), kUsualHeight};
}

DeviceMap PictureBox::MapToWidget() const {
    if (showsPage_) {
        return DeviceMap::OfPage(area_, width(), height());
    }
    DeviceMap map = ScreenMap(shape_);
    const double zoom =
        std::min(width() / (area_.width * map.perUnitX), height() / (area_.height * map.perUnitY));
    map.perUnitX *= zoom;
    map.perUnitY *= zoom;
    map.perPixel *= zoom;
    map.originX = width() / 2. - (area_.left + area_.width / 2) * map.perUnitX;
    map.originY = height() / 2. - (area_.top + area_.height / 2) * map.perUnitY;
    return map;
}

QPointF PictureBox::ToWidget(double x, double y) const {
    const DeviceMap map = MapToWidget();
    return {map.originX + x * map.perUnitX, map.originY + y * map.perUnitY};
}

QPointF PictureBox::FromWidget(const QPointF& at) const {
    const DeviceMap map = MapToWidget();
    return {(at.x() - map.originX) / map.perUnitX, (at.y() - map.originY) / map.perUnitY};
}

void PictureBox::paintEvent(QPaintEvent* /*event*/) {
    QPainter painter(this);
    painter.fillRect(rect(), Qt::white);
    painter.setRenderHint(QPainter::Antialiasing);
    PainterSurface surface(painter, MapToWidget());
    record_.Replay(surface);
}

} // namespace vernacle
