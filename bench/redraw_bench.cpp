// A full redraw of the dense example on a screen of 1920 x 1080, against a replay of the primitives
// that it painted; and with half and a quarter of its tics.
#include <benchmark/benchmark.h>

#include <QGuiApplication>
#include <QImage>
#include <QTemporaryDir>

#include "designs.h"
#include "engine/base/hostservices.h"
#include "engine/core/design.h"
#include "engine/core/service.h"
#include "engine/designfile/readwrite.h"
#include "engine/render/drawing.h"
#include "engine/scale/scale.h"
#include "primitives.h"
#include "surfaces/paintersurface.h"

namespace vernacle::bench {
namespace {

constexpr int kWidth = 1920;
constexpr int kHeight = 1080;

void RedrawOn(QPaintDevice& device) {
    QPainter painter(&device);
    painter.setRenderHint(QPainter::Antialiasing);
    PainterSurface surface(painter, DeviceMap::OfScreen(kWidth, kHeight));
    ComputeTicDeflections(Design);
    ComputeTicLabels(Design);
    DrawPage(Design, surface, PreviewTraits(), {Design.FontSize, Design.LabelSpacing}, Drawing);
}

// steps; labels turned along the bearing's radius or upright
void Redraw(benchmark::State& state, const char* rotation) {
    LoadDense();
    Design.NrOfTicmarks[1] = static_cast<std::int16_t>(state.range(0));
    Design.LabelRotation = rotation;
    QImage image(kWidth, kHeight, QImage::Format_RGB32);
    for ([[maybe_unused]] auto _ : state) {
        RedrawOn(image);
    }
}
BENCHMARK_CAPTURE(Redraw, Upright, "H")->Arg(90)->Arg(180)->Arg(360)->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(Redraw, Turned, "B")->Arg(360)->Unit(benchmark::kMillisecond);

void ReplayOfRedraw(benchmark::State& state, const char* rotation) {
    LoadDense();
    Design.LabelRotation = rotation;
    PrimitiveDevice device(kWidth, kHeight, 96);
    RedrawOn(device);
    QImage image(kWidth, kHeight, QImage::Format_RGB32);
    for ([[maybe_unused]] auto _ : state) {
        QPainter painter(&image);
        Replay(device.primitives, painter);
    }
    state.counters["primitives"] = static_cast<double>(device.primitives.size());
}
BENCHMARK_CAPTURE(ReplayOfRedraw, Upright, "H")->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(ReplayOfRedraw, Turned, "B")->Unit(benchmark::kMillisecond);

// A true plate in full use: six scales of 100 tics, each tenth labelled, three highlights, a
// graphic.
void UseAll(const std::string& graphic) {
    ResetDesign(Design);
    Design.NumberOfScales = kScales;
    for (int scale = 1; scale <= kScales; ++scale) {
        Design.NrOfTicmarks[scale] = 99;
        Design.BottomToScaleCeiling[scale] = 20 + 4 * static_cast<float>(scale);
        Design.ScaleColor[scale] = 0x202020 * scale;
        Design.RelativeFontSize[scale] = 0.6F;
    }
    for (int slot = 1; slot <= 3; ++slot) {
        Design.HighlightStart[slot] = 20;
        Design.HighlightStop[slot] = 30 * static_cast<float>(slot);
        Design.HighlightCeiling[slot] = 22 + 8 * static_cast<float>(slot);
        Design.HighlightLength[slot] = 2;
        Design.HighlightColor[slot] = 0x00FFFF;
    }
    Design.DrawGraphic = "Y";
    Design.GraphicFileName = graphic;
    Design.LeftToGraphic = 5;
    Design.BottomToGraphic = 20;
    Design.GraphicWidth = Design.GraphicHeight = 15;
    Design.LabelRotation = "B";
}

void TrueRedraw(benchmark::State& state) {
    const QTemporaryDir folder;
    const QString graphic = folder.filePath(QStringLiteral("mark.png"));
    QImage mark(600, 600, QImage::Format_ARGB32);
    mark.fill(Qt::darkCyan);
    mark.save(graphic);
    UseAll(graphic.toStdString());
    StoreService(Program::Workshop);
    QImage image(kWidth, kHeight, QImage::Format_RGB32);
    for ([[maybe_unused]] auto _ : state) {
        QPainter painter(&image);
        painter.setRenderHint(QPainter::Antialiasing);
        PainterSurface surface(painter, DeviceMap::OfPage(TrueArea(Design), kWidth, kHeight));
        ComputeTicDeflections(Design);
        ComputeTicLabels(Design);
        DrawPage(Design, surface, PreviewTraits(), {Design.FontSize, Design.LabelSpacing}, Drawing);
    }
    StoreService(Program::Everyday);
}
BENCHMARK(TrueRedraw)->Unit(benchmark::kMillisecond);

// What undo keeps and brings back at each step.
void Snapshot(benchmark::State& state) {
    UseAll("");
    StoreService(Program::Workshop);
    for ([[maybe_unused]] auto _ : state) {
        ReadDesignText(Design, DesignText(Design));
    }
    StoreService(Program::Everyday);
}
BENCHMARK(Snapshot)->Unit(benchmark::kMillisecond);

} // namespace
} // namespace vernacle::bench

int main(int argc, char** argv) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QGuiApplication application(argc, argv);
    vernacle::Host.screenSize = [] {
        return vernacle::ScreenSize{vernacle::bench::kWidth * 15.F,
                                    vernacle::bench::kHeight * 15.F};
    };
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
