// What the engine's routines cost: the tables that every keystroke computes, the plotter's stream,
// and the design file.
#include <benchmark/benchmark.h>

#include "designs.h"
#include "engine/base/hostservices.h"
#include "engine/core/design.h"
#include "engine/designfile/readwrite.h"
#include "engine/output/hpgl.h"
#include "engine/scale/scale.h"

namespace vernacle::bench {
namespace {

class CountingSink : public ByteSink {
public:
    void Write(std::string_view bytes) override { count += bytes.size(); }
    void Close() override {}

    std::size_t count = 0;
};

// scales, steps
void Tables(benchmark::State& state) {
    LoadScales(static_cast<int>(state.range(0)), static_cast<std::int16_t>(state.range(1)));
    for ([[maybe_unused]] auto _ : state) {
        ComputeTicDeflections(Design);
        ComputeTicLabels(Design);
        benchmark::ClobberMemory();
    }
}
BENCHMARK(Tables)->Args({1, 90})->Args({1, 180})->Args({1, 360})->Args({6, 360});

void TablesOfDense(benchmark::State& state) {
    LoadDense();
    for ([[maybe_unused]] auto _ : state) {
        ComputeTicDeflections(Design);
        ComputeTicLabels(Design);
        benchmark::ClobberMemory();
    }
}
BENCHMARK(TablesOfDense);

void HpglOfDense(benchmark::State& state) {
    LoadDense();
    for ([[maybe_unused]] auto _ : state) {
        CountingSink sink;
        WriteHpglStream(Design, sink, HpglMode::File);
        benchmark::DoNotOptimize(sink.count);
    }
}
BENCHMARK(HpglOfDense);

void ReadDense(benchmark::State& state) {
    std::string bytes = ReadWholeFile(VERNACLE_EXAMPLES "/DEGREES-0-360.VRN");
    Host.readFile = [bytes = std::move(bytes)](const std::string&) -> std::string { return bytes; };
    for ([[maybe_unused]] auto _ : state) {
        ReadDesign(Design, "dense");
    }
    Host = DefaultHost();
}
BENCHMARK(ReadDense);

void WriteDense(benchmark::State& state) {
    LoadDense();
    Host.openForOutput = [](const std::string&) { return std::make_unique<CountingSink>(); };
    for ([[maybe_unused]] auto _ : state) {
        WriteDesign(Design);
    }
    Host = DefaultHost();
}
BENCHMARK(WriteDense);

} // namespace
} // namespace vernacle::bench

BENCHMARK_MAIN();
