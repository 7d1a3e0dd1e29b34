// Whether the program runs twice for this user.
#pragma once

namespace vernacle {

// Says so if another copy is running; from then on this one is found by those that start later.
void TellOfOtherCopy();

} // namespace vernacle
