// The setup of a standing-wave meter's scale.
#pragma once

#include "desktop/setups/picturedsetup.h"
#include "engine/setups/vswr.h"

namespace vernacle {

class frmSetupVSWR : public PicturedSetupPage {
    Q_OBJECT

public:
    frmSetupVSWR();

protected:
    bool AcceptSetup() override;
    void ComputeTics(int option, float exponent) override;
    int MadeOption() const override;

private:
    VswrSetup setup_;
};

} // namespace vernacle
