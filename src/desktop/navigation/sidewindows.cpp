#include "desktop/navigation/sidewindows.h"

#include <algorithm>
#include <vector>

#include <QPointer>
#include <QWidget>
#include <QWindow>

namespace vernacle {

namespace {

std::vector<QPointer<QWidget>> openWindows;

void BelongTo(QWidget& window, const QWidget& page) {
    window.winId(); // so that it has a window that can belong to another
    window.windowHandle()->setTransientParent(page.windowHandle());
}

} // namespace

void ShowBeside(QWidget& window, const QWidget& page) {
    std::erase_if(openWindows, [](const QPointer<QWidget>& open) { return open.isNull(); });
    if (std::find(openWindows.begin(), openWindows.end(), &window) == openWindows.end()) {
        window.setAttribute(Qt::WA_DeleteOnClose);
        openWindows.emplace_back(&window);
        BelongTo(window, page);
    }
    window.show();
    window.activateWindow();
}

void KeepBeside(const QWidget& page) {
    for (const QPointer<QWidget>& window : openWindows) {
        if (window && window->isVisible()) {
            window->hide(); // what a window belongs to is read when it is shown
            BelongTo(*window, page);
            window->setAttribute(Qt::WA_ShowWithoutActivating);
            window->show();
            window->setAttribute(Qt::WA_ShowWithoutActivating, false);
        }
    }
}

} // namespace vernacle
