#include "engine/setups/setupkind.h"

namespace vernacle {

void RememberSetup(DesignRecord& design, int scale, const SetupKind& kind) {
    design.ScaleSetup[scale] = kind.name;
    for (int tic = design.SpecialNrOfTicmarks[scale] + 1; tic <= kLastTic; ++tic) {
        ResetSpecialTic(design, scale, tic);
    }
}

bool HoldsTicsFor(const DesignRecord& design, int scale, const SetupKind& kind) {
    const std::string& maker = design.ScaleSetup[scale];
    if (maker.empty()) {
        return design.ScaleColor[scale] < 0;
    }
    return kind.takesAny || maker == kind.name;
}

std::string LossBy(const DesignRecord& design, int scale, const SetupKind& kind) {
    const std::string& maker = design.ScaleSetup[scale];
    const std::string name = "Scale " + std::to_string(scale);
    const int tics = design.SpecialNrOfTicmarks[scale] + 1;
    std::string loss;
    if (!maker.empty() && maker != kind.name) {
        loss = name + " was made by the " + maker + " setup, and the " + kind.name +
               " setup would make it its own.";
    }
    if (HoldsTicsFor(design, scale, kind) && tics > kind.room) {
        loss += loss.empty() ? name : " It";
        loss += " has " + std::to_string(tics) + " tics, of which the " + kind.name +
                " setup has room for the first " + std::to_string(kind.room) + ".";
    }
    return loss;
}

} // namespace vernacle
