// A real setup of each kind of special scale, for the pictures that show what they are.
#pragma once

namespace vernacle {

// Each writes the scale's tables and marks it special.
void SetUpSampleOhmmeter(int scale);
void SetUpSampleArbitrary(int scale);
void SetUpSampleSmeter(int scale);
void SetUpSampleVswr(int scale);
void SetUpSampleDecibel(int scale);

} // namespace vernacle
