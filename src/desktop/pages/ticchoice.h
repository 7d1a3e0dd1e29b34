// A choice of one of a scale's tics, for a box beside it that takes a percentage.
#pragma once

#include <QComboBox>

#include "engine/scale/ticrows.h"

namespace vernacle {

class TicChoice : public QComboBox {
    Q_OBJECT

public:
    TicChoice(const char* name, const QString& accessibleName);

    // Offers those tics, and shows none of them.
    void Offer(const std::vector<TicPercent>& tics);

    // Shows the tic that stands there, or none.
    void ShowTicAt(float percent);

Q_SIGNALS:
    void Chosen(float percent); // by the user

private:
    std::vector<TicPercent> tics_;
};

} // namespace vernacle
