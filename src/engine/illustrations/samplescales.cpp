#include "engine/illustrations/samplescales.h"

#include <algorithm>
#include <array>
#include <iterator>
#include <string>
#include <vector>

#include "engine/base/numbertext.h"
#include "engine/core/entry.h"
#include "engine/setups/decibel.h"
#include "engine/setups/ohmmeter.h"
#include "engine/setups/smeter.h"
#include "engine/setups/special.h"
#include "engine/setups/vswr.h"

namespace vernacle {

namespace {

constexpr float kMidscale = 20; // ohms

struct Ohms {
    float ohms;
    const char* label;
};

constexpr Ohms kOhms[] = {{0, "0"},     {2, ""},    {5, "5"}, {7, ""},    {10, "10"},
                          {15, ""},     {20, "20"}, {30, ""}, {40, "40"}, {60, ""},
                          {100, "100"}, {200, ""},  {500, ""}};

struct Mark {
    const char* deflection;
    const char* label;
    Answer major;
};

constexpr Mark kFuel[] = {
    {"0", "E", Answer::Yes},     {".13", " ", Answer::No},   {".27", "1/4", Answer::Yes},
    {".38", " ", Answer::No},    {".5", "1/2", Answer::Yes}, {".61", " ", Answer::No},
    {".74", "3/4", Answer::Yes}, {".86", " ", Answer::No},   {"1", "F", Answer::Yes},
};

constexpr int kLabelledDecibels[] = {0, 1, 2, 3, 4, 5, 6, 8, 10, 13, 16, 23};

} // namespace

void SetUpSampleOhmmeter(DesignRecord& design, int scale) {
    std::vector<ResistanceRow> rows;
    for (const Ohms& ohms : kOhms) {
        std::string deflection;
        FormatByMagnitude(double{ComputeResistanceDeflection(kMidscale, ohms.ohms)}, deflection);
        rows.push_back({.deflection = deflection,
                        .label = ohms.label,
                        .ticClass = *ohms.label == '\0' ? TicClass::Minor : TicClass::Major});
    }
    rows.push_back({.deflection = "0", .label = "\u221E", .ticClass = TicClass::Major});
    StoreResistanceList(design, scale, rows);
}

void SetUpSampleArbitrary(DesignRecord& design, int scale) {
    std::array<SpecialRow, kSpecialRows> rows;
    std::ranges::transform(kFuel, rows.begin(), [](const Mark& mark) {
        return SpecialRow{.deflection = mark.deflection, .label = mark.label, .major = mark.major};
    });
    float last = std::size(kFuel) - 1;
    ApplySpecialTable(design, scale, last, rows);
    MarkSpecial(design, scale);
}

void SetUpSampleSmeter(DesignRecord& design, int scale) {
    SmeterSetup setup{.ScaleType = 4};
    ComputeSmeterTics(design, scale, 1, setup);
    MarkSpecial(design, scale);
}

void SetUpSampleVswr(DesignRecord& design, int scale) {
    VswrSetup setup{.StepSize = 0.5F};
    ComputeVSWRTics(design, scale, 1, setup);
    MarkSpecial(design, scale);
}

void SetUpSampleDecibel(DesignRecord& design, int scale) {
    DecibelEntries entries{
        .fullScale = 3, .ticmarks = kDecibelRows - 1, .exponent = 1, .multiplier = 1, .tics = {}};
    for (DecibelTic& tic : entries.tics) {
        tic.printed = Answer::Yes;
    }
    for (const int tic : kLabelledDecibels) {
        entries.tics.at(static_cast<std::size_t>(tic)).labelled = Answer::Yes;
        entries.tics.at(static_cast<std::size_t>(tic)).major = Answer::Yes;
    }
    ComputeDecibelTics(design, scale, entries);
    MarkSpecial(design, scale);
}

} // namespace vernacle
