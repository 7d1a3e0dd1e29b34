#include "desktop/navigation/windowplacing.h"

#include <algorithm>
#include <cstdlib>
#include <tuple>
#include <vector>

#include <QGroupBox>
#include <QLabel>
#include <QScreen>
#include <QStyle>

#include "desktop/kit/picturebox.h"

namespace vernacle {

namespace {

constexpr int kSteps = 16; // of places from one edge of the screen to the other

struct Seen {
    std::vector<QRect> worked; // controls and captions
    std::vector<QRect> looked; // pictures
};

bool IsCaption(const QWidget& widget) {
    const auto* label = qobject_cast<const QLabel*>(&widget);
    return label && !label->text().isEmpty();
}

// On the screen, as far as the page shows it.
Seen SeenOf(const QWidget& page) {
    Seen seen;
    const QRect window(page.mapToGlobal(QPoint()), page.size());
    for (const auto* widget : page.findChildren<QWidget*>()) {
        if (!widget->isVisibleTo(&page) || widget->isWindow()) {
            continue;
        }
        const QRect rect = QRect(widget->mapToGlobal(QPoint()), widget->size()) & window;
        if (qobject_cast<const PictureBox*>(widget)) {
            seen.looked.push_back(rect);
        } else if (widget->focusPolicy() != Qt::NoFocus || IsCaption(*widget) ||
                   qobject_cast<const QGroupBox*>(widget)) {
            seen.worked.push_back(rect);
        }
    }
    return seen;
}

double Covered(const std::vector<QRect>& rects, const QRect& by) {
    double pixels = 0;
    for (const QRect& rect : rects) {
        const QRect hidden = rect & by;
        pixels += double(hidden.width()) * hidden.height();
    }
    return pixels;
}

struct Place {
    QRect rect;
    double worked = 0;
    double looked = 0;
    int offMiddle = 0; // up or down

    auto Cost() const { return std::tuple(worked, looked, -rect.x(), offMiddle); }
};

Place BestOf(const Seen& seen, const QRect& room, const QSize& size) {
    std::vector<Place> places;
    const QSize free = (room.size() - size).expandedTo({0, 0});
    for (int across = 0; across <= kSteps; ++across) {
        for (int down = 0; down <= kSteps; ++down) {
            const QPoint corner(free.width() * across / kSteps, free.height() * down / kSteps);
            const QRect rect(room.topLeft() + corner, size);
            places.push_back({rect, Covered(seen.worked, rect), Covered(seen.looked, rect),
                              std::abs(down - kSteps / 2)});
        }
    }
    return *std::ranges::min_element(places, {}, &Place::Cost);
}

} // namespace

QRect LeastCovering(const QWidget& page, std::span<const QSize> sizes) {
    const Seen seen = SeenOf(page);
    QRect room = page.screen()->availableGeometry();
    room.setTop(room.top() + page.style()->pixelMetric(QStyle::PM_TitleBarHeight));
    std::vector<Place> best;
    for (const QSize& size : sizes) {
        best.push_back(BestOf(seen, room, size.boundedTo(room.size())));
        if (best.back().worked == 0) {
            return best.back().rect;
        }
    }
    return std::ranges::min_element(best, {}, &Place::worked)->rect;
}

} // namespace vernacle
