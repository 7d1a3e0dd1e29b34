// Designs whose numbers no plate has, as a damaged file gives them: each must be drawn at once, on
// a screen of 1920 x 1080 within a second, on one of 3840 x 2160 within two, and in 200 MB.
#include <benchmark/benchmark.h>

#include <algorithm>
#include <filesystem>
#include <string>
#include <vector>

#include <sys/resource.h>

#include <QGuiApplication>
#include <QImage>

#include "engine/base/hostservices.h"
#include "engine/core/design.h"
#include "engine/designfile/readwrite.h"
#include "engine/output/print.h"
#include "engine/render/drawing.h"
#include "engine/scale/scale.h"
#include "surfaces/documents.h"

namespace vernacle::bench {
namespace {

struct AbsurdDesign {
    std::string name;
    std::string file;
};

std::string Example() {
    return ReadWholeFile(VERNACLE_EXAMPLES "/DEGREES-0-360.VRN");
}

// The dense example with another value behind a label.
std::string With(const std::string& label, const std::string& value, std::string file = Example()) {
    const std::size_t start = file.find("\n" + label) + 1 + label.size();
    return file.replace(start, file.find('\r', start) - start, value);
}

// A special scale of 361 tics whose labels fill a megabyte.
std::string LongLabels() {
    std::string block = "-1\r\nTitle: 30\r\nCeiling: 35\r\nScale title:t\r\nTicmarks: 360\r\n";
    for (int tic = 0; tic <= 360; ++tic) {
        block += std::to_string(tic / 360.) + "\\Y\\Y\\Y\\" + std::string(2800, 'M') + "\r\n";
    }
    block += "Bottom: Y\r\nExponent: 1\r\nMultiplier: 1";
    std::string file = Example();
    const std::size_t start = file.find("\nScale color: ") + 14;
    return file.replace(start, file.find("\r\nDraw graphic") - start, block);
}

std::vector<AbsurdDesign> MakeDesigns() {
    constexpr std::size_t kMegabyte = 1U << 20U;
    std::vector<AbsurdDesign> designs = {
        {"usual", Example()},
        {"title of a megabyte", With("Scale title:", std::string(kMegabyte, 'M'))},
        {"labels of a megabyte", LongLabels()},
        {"turned labels of a megabyte", With("Label rotation H/V/B:", "B", LongLabels())},
    };
    for (const char* length : {"100", "300", "1000", "1e5"}) { // all tics, and of wide pens
        designs.push_back(
            {std::string("wide tics of ") + length,
             With("Minor ticmark length: ", length,
                  With("Major ticmark length: ", length, With("Minor ticmark width: ", "20")))});
    }
    const std::pair<const char*, const char*> letters[] = {
        {"greek", "\xCE\xA9"}, {"arabic", "\xD8\xB9"}, {"face", "\xF0\x9F\x98\x80"}};
    for (const auto& [script, letter] : letters) {
        std::string title;
        while (title.size() < kMegabyte) {
            title += letter;
        }
        designs.push_back({std::string(script) + " title of a megabyte",
                           "\xEF\xBB\xBF" + With("Scale title:", title)});
    }
    for (const char* label :
         {"Plate width: ", "Plate height: ", "Bottom to bearing: ", "Bottom to mounting holes: ",
          "Hole separation: ", "Pointer deflection: ", "Minor ticmark length: ",
          "Major ticmark length: ", "Major ticmark width: ", "Font size: ",
          "Actual/virtual offset: ", "Label spacing: ", "Bottom to title: ",
          "Bottom to scale ceiling: ", "Linearity exponent: ", "Arc width: ", "Scale 1: "}) {
        for (const char* value :
             {"1e5", "1e6", "1e7", "1e8", "1e9", "1e10", "-1e5", "1e-5", "1e-9"}) {
            designs.push_back({std::string(label) + value, With(label, value)});
            designs.push_back({std::string(label) + value + " turned",
                               With("Label rotation H/V/B:", "B", With(label, value))});
        }
    }
    for (const auto& entry : std::filesystem::directory_iterator(VERNACLE_CORPUS)) {
        designs.push_back(
            {"corpus " + entry.path().filename().string(), ReadWholeFile(entry.path().string())});
    }
    return designs;
}

// False where the numbers do not even make a scale.
bool Load(const std::string& file) {
    Host.readFile = [&file](const std::string&) { return file; };
    SetVersionAndScreenScale(Design);
    SetOpeningValues(Design);
    ReadDesign(Design, "design");
    Design.CalibrationX = Design.CalibrationY = 1;
    try {
        NormalizeDesign(Design);
        HoldAspectRatio(Design);
        ComputeTicDeflections(Design);
        ComputeTicLabels(Design);
        return true;
    } catch (const RunTimeError&) {
        return false;
    }
}

void NotePeak(benchmark::State& state) {
    rusage usage{};
    getrusage(RUSAGE_SELF, &usage);
    state.counters["peak_MB_so_far"] = static_cast<double>(usage.ru_maxrss) / 1024;
}

void DrawOnScreen(benchmark::State& state, const std::string& file, QSize size) {
    Host.screenSize = [size] {
        return ScreenSize{static_cast<float>(size.width()) * 15,
                          static_cast<float>(size.height()) * 15};
    };
    QImage image(size, QImage::Format_RGB32);
    image.fill(Qt::white);
    if (!Load(file)) {
        state.SkipWithError("no scale");
    }
    for ([[maybe_unused]] auto _ : state) {
        QPainter painter(&image);
        painter.setRenderHint(QPainter::Antialiasing);
        PainterSurface surface(painter, DeviceMap::OfScreen(size.width(), size.height()));
        DrawPage(Design, surface, PreviewTraits(), {Design.FontSize, Design.LabelSpacing}, Drawing);
    }
    NotePeak(state);
}

void PrintOnPaper(benchmark::State& state, const std::string& file) {
    if (!Load(file)) {
        state.SkipWithError("no scale");
    }
    for ([[maybe_unused]] auto _ : state) {
        benchmark::DoNotOptimize(MakePdf(
            kSheets[0], "", "", [](PrinterSurface& printer) { PrintPlate(Design, printer); }));
    }
    NotePeak(state);
}

void Register(const AbsurdDesign& design) {
    const auto add = [&](const char* where, auto draw) {
        benchmark::RegisterBenchmark((where + design.name).c_str(), draw)
            ->Iterations(1)
            ->Unit(benchmark::kMillisecond);
    };
    add("1920x1080/",
        [&](benchmark::State& state) { DrawOnScreen(state, design.file, QSize(1920, 1080)); });
    add("3840x2160/",
        [&](benchmark::State& state) { DrawOnScreen(state, design.file, QSize(3840, 2160)); });
    add("paper/", [&](benchmark::State& state) { PrintOnPaper(state, design.file); });
}

} // namespace
} // namespace vernacle::bench

int main(int argc, char** argv) {
    using namespace vernacle::bench;
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QGuiApplication application(argc, argv);
    const std::vector<AbsurdDesign> designs = MakeDesigns();
    std::for_each(designs.begin(), designs.end(), Register);
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
