// The setup of a signal-strength meter's scale.
#pragma once

#include "desktop/setups/picturedsetup.h"
#include "engine/setups/smeter.h"

namespace vernacle {

class frmSetupSmeter : public PicturedSetupPage {
    Q_OBJECT

public:
    frmSetupSmeter();

protected:
    void ComputeTics(int option, float exponent) override;
    int MadeOption() const override;

private:
    SmeterSetup setup_;
};

} // namespace vernacle
