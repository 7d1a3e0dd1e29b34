// Where a window beside a page stands: where it covers least of what the page's user works with.
#pragma once

#include <span>

#include <QRect>

class QWidget;

namespace vernacle {

// The place on the page's screen, of the first of those sizes that covers no control and no caption
// of the page; of that which covers least of them if each covers some. Of places that cover the
// same, that which covers least of the page's pictures, and then the one farthest to the right.
QRect LeastCovering(const QWidget& page, std::span<const QSize> sizes);

} // namespace vernacle
