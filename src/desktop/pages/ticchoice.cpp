#include "desktop/pages/ticchoice.h"

#include <algorithm>

#include "engine/base/numbertext.h"

namespace vernacle {

TicChoice::TicChoice(const char* name, const QString& accessibleName) {
    setObjectName(QLatin1String(name));
    setAccessibleName(accessibleName);
    connect(this, &QComboBox::activated, this, [this](int index) {
        Q_EMIT Chosen(tics_.at(static_cast<std::size_t>(index)).percent);
    });
}

void TicChoice::Offer(const std::vector<TicPercent>& tics) {
    tics_ = tics;
    clear();
    for (const TicPercent& tic : tics_) {
        addItem(QString::fromStdString(tic.text));
    }
    setCurrentIndex(-1);
}

// A box shows seven digits of what a tic's place may have more of.
void TicChoice::ShowTicAt(float percent) {
    const auto found = std::ranges::find_if(tics_, [percent](const TicPercent& tic) {
        return PlainNumber(tic.percent) == PlainNumber(percent);
    });
    setCurrentIndex(found == tics_.end() ? -1 : static_cast<int>(found - tics_.begin()));
}

} // namespace vernacle
