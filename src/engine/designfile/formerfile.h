// What stood in a file before the workshop's saving.
#pragma once

#include <string>
#include <string_view>

namespace vernacle {

// Whether a design's text has what a careful file keeps beside its lines by their places.
bool IsCareful(std::string_view fileText);

// The file of that name is about to be replaced: one that the everyday program wrote is kept beside
// it, as "NAME.VRN~". Nothing for one that is not there or no regular file. Throws FileFailure.
void KeepEverydayFile(const std::string& name);

} // namespace vernacle
