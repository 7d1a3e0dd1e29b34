// The setups whose page shows its own picture: one option is chosen, the tics are computed at once
// and drawn.
#pragma once

#include <span>
#include <vector>

#include "desktop/setups/setuppage.h"

namespace vernacle {

class SetupPicture;

struct PicturedSetupTraits {
    SetupPageTraits setup;
    const char* frame; // the title of the options' frame
    std::span<const char* const> options;
};

class PicturedSetupPage : public SetupPage {
    Q_OBJECT

protected:
    // The traits must outlive the page.
    explicit PicturedSetupPage(const PicturedSetupTraits& traits);

    // Computes for the option of that number, from 1, with the exponent as it is typed.
    virtual void ComputeTics(int option, float exponent) = 0;

private:
    void Build();
    QWidget* MakeOptions();

    void OptionClicked(int option);
    void txtLinearityExponentChanged();

    const PicturedSetupTraits& traits_;
    SetupPicture* picture_ = nullptr;
    Field* exponent_ = nullptr;
    std::vector<OptionButton*> options_; // in the order of their numbers
};

} // namespace vernacle
