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
    void AcceptSetup() override;
    void ComputeTics(int option, float exponent) override;

private:
    VswrSetup setup_;
};

} // namespace vernacle
