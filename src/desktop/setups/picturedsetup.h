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

    // The option by which the scale that is read back was made; 0 if none was.
    virtual int MadeOption() const = 0;

    void ReadBack() override;
    bool CheckEntries(SetupMoment moment) override;

private:
    void Build();
    QWidget* MakeOptions();

    void OptionClicked(int option);
    void txtLinearityExponentChanged();

    int ChosenOption() const; // 0 if none is
    float Exponent() const;
    void MakeTics(int option);

    const PicturedSetupTraits& traits_;
    SetupPicture* picture_ = nullptr;
    Field* exponent_ = nullptr;
    std::string exponentRead_;           // as it was shown when the scale was read back
    float exponentKept_ = 0;             // and what it stood for
    bool isComputed_ = true;             // the tics are those of what the page shows
    std::vector<OptionButton*> options_; // in the order of their numbers
};

} // namespace vernacle
