// On a screen of 1920 x 1080: a keystroke on the scales page with the dense example, from the key
// to the finished picture; and the list of all tics, filled with as many as it takes.
#include <benchmark/benchmark.h>

#include <fstream>
#include <string>

#include <QKeyEvent>
#include <QPushButton>

#include "designs.h"
#include "desktop/app/application.h"
#include "desktop/app/forms.h"
#include "desktop/kit/entrybox.h"
#include "desktop/navigation/changewatch.h"
#include "desktop/navigation/opendocument.h"
#include "desktop/system/desktophost.h"
#include "engine/core/design.h"
#include "engine/core/service.h"
#include "engine/designfile/readwrite.h"
#include "screen.h"

namespace vernacle::bench {
namespace {

// Of this process now, MB.
double ResidentMemory() {
    std::ifstream status("/proc/self/status");
    for (std::string line; std::getline(status, line);) {
        if (line.rfind("VmRSS:", 0) == 0) {
            return std::stod(line.substr(6)) / 1024;
        }
    }
    return 0;
}

EntryBox& OpenPage(const char* page, const char* box) {
    GoToPage(page);
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete); // the page before
    QCoreApplication::processEvents();
    return *CurrentPage()->findChild<EntryBox*>(QLatin1String(box));
}

EntryBox& OpenScalesPage(const char* box) {
    Design.DesignFileName = VERNACLE_EXAMPLES "/DEGREES-0-360.VRN";
    ReadDesign(Design, Design.DesignFileName);
    Design.ActiveScale = 1;
    return OpenPage("frmScales", box);
}

void Press(QWidget& box, Qt::Key key, const QString& text = {}) {
    QKeyEvent press(QEvent::KeyPress, key, Qt::NoModifier, text);
    QCoreApplication::sendEvent(&box, &press);
    QKeyEvent release(QEvent::KeyRelease, key, Qt::NoModifier, text);
    QCoreApplication::sendEvent(&box, &release);
    QCoreApplication::processEvents(); // paints
}

// A digit, in turn.
void TypeAndRemove(benchmark::State& state, EntryBox& box) {
    bool typed = false;
    for ([[maybe_unused]] auto _ : state) {
        if (typed) {
            Press(box, Qt::Key_Backspace);
        } else {
            Press(box, Qt::Key_1, QStringLiteral("1"));
        }
        typed = !typed;
    }
}

void Keystroke(benchmark::State& state, const char* name) {
    EntryBox& box = OpenScalesPage(name);
    TypeAndRemove(state, box);
    state.counters["resident_MB"] = ResidentMemory();
}
BENCHMARK_CAPTURE(Keystroke, Title, "txtScaleTitle")->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(Keystroke, Ceiling, "txtBottomToScaleCeiling")->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(Keystroke, LeftEnd, "txtScaleLeftEnd")->Unit(benchmark::kMillisecond);

// A design with six scales of a hundred tics, three highlights and a text.
void UseMuch() {
    StoreService(Program::Workshop);
    LoadScales(kScales, 100);
    Design.NumberOfHighlights = 3;
    for (int slot = 1; slot <= 3; ++slot) {
        Design.HighlightStart[slot] = static_cast<float>(20 * slot);
        Design.HighlightStop[slot] = static_cast<float>(20 * slot + 15);
        Design.HighlightCeiling[slot] = 30;
        Design.HighlightLength[slot] = 2;
    }
    Design.TextString[1] = "Made here";
    WatchChanges();
    Document().Start(true);
}

// The same with everything in service: the step for undo is taken with the key.
void WorkshopKeystroke(benchmark::State& state, const char* page, const char* name) {
    UseMuch();
    EntryBox& box = OpenPage(page, name);
    box.setFocus();
    TypeAndRemove(state, box);
    StoreService(Program::Everyday);
}
BENCHMARK_CAPTURE(WorkshopKeystroke, Title, "frmScales", "txtScaleTitle")
    ->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(WorkshopKeystroke, Text, "frmText", "txtText")->Unit(benchmark::kMillisecond);

// A step back and forth again, without the page that shows it.
void UndoAndRedo(benchmark::State& state) {
    UseMuch();
    Design.PlateWidth = 80;
    Document().Visit("width", {});
    bool isBack = false;
    for ([[maybe_unused]] auto _ : state) {
        isBack ? Document().Redo() : Document().Undo();
        isBack = !isBack;
    }
    StoreService(Program::Everyday);
}
BENCHMARK(UndoAndRedo)->Unit(benchmark::kMillisecond);

// The refill behind "Accept", painted: 4 scales of 361 rows.
void FillTicList(benchmark::State& state) {
    Design.NumberOfScales = 4;
    for (int scale = 1; scale <= 4; ++scale) {
        Design.NrOfTicmarks[scale] = kLastTic;
    }
    const std::unique_ptr<QWidget> form = MakeForm("frmSelectTics");
    form->show();
    auto* accept = form->findChild<QPushButton*>(QStringLiteral("cmdAccept"));
    for ([[maybe_unused]] auto _ : state) {
        accept->click();
        QCoreApplication::processEvents();
    }
}
BENCHMARK(FillTicList)->Unit(benchmark::kMillisecond);

} // namespace
} // namespace vernacle::bench

int main(int argc, char** argv) {
    using namespace vernacle;
    const bench::FullHdScreen screen;
    Application application(argc, argv);
    Host = DesktopHost();
    SetForms(ProgramForms());
    SetVersionAndScreenScale(Design);
    SetOpeningValues(Design);
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
