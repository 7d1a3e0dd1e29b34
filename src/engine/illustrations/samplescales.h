// A real setup of each kind of special scale, for the pictures that show what they are.
#pragma once

namespace vernacle {

struct DesignRecord;

// Each writes the scale's tables and marks it special.
void SetUpSampleOhmmeter(DesignRecord& design, int scale);
void SetUpSampleArbitrary(DesignRecord& design, int scale);
void SetUpSampleSmeter(DesignRecord& design, int scale);
void SetUpSampleVswr(DesignRecord& design, int scale);
void SetUpSampleDecibel(DesignRecord& design, int scale);

} // namespace vernacle
