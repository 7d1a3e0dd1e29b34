#include "desktop/setups/frmSetupMenu.h"

#include <optional>

#include <QGridLayout>
#include <QVBoxLayout>

#include "desktop/kit/formkit.h"
#include "desktop/kit/picturebox.h"
#include "desktop/navigation/navigator.h"
#include "desktop/navigation/session.h"
#include "desktop/system/dialogs.h"
#include "engine/core/design.h"
#include "engine/core/service.h"
#include "engine/illustrations/samples.h"
#include "engine/setups/setupkind.h"

namespace vernacle {

namespace {

constexpr int kSetupMenuColumns = 3;

} // namespace

struct frmSetupMenu::Entry {
    const char* button = nullptr;
    const char* caption = nullptr;
    const char* tip = nullptr;
    const char* page = nullptr;
    const char* picture = nullptr;
    const SetupKind* kind = nullptr; // of the setup on that page
    std::optional<Sample> sample;
};

// clang-format off
const frmSetupMenu::Entry frmSetupMenu::kEntries[] = {
    {"cmdOhms",    "Ohmmeter",  "",                                                           "frmSetupOhmmeter", "Image1", &kOhmmeterKind, Sample::Ohmmeter},
    {"cmdSpecial", "Arbitrary", "Design a scale with arbitrary ticmark locations and labels", "frmSpecialScale",  "Image2", &kArbitraryKind, Sample::Arbitrary},
    {"cmdSmeter",  "S-meter",   "Design an S-meter scale",                                    "frmSetupSmeter",   "Image3", &kSmeterKind, Sample::Smeter},
    {"cmdVSWR",    "VSWR",      "Design a VSWR scale",                                        "frmSetupVSWR",     "Image4", &kVswrKind, Sample::Vswr},
    {"cmddB",      "dB",        "Design a dB or vu meter scale",                              "frmSetupdB",       "Image5", &kDecibelKind, Sample::Decibel},
    {"cmdExit",    "Return to Scales page", "",                                               "frmScales",        nullptr,  nullptr, {}},
};
// clang-format on

frmSetupMenu::frmSetupMenu() : Page("frmSetupMenu") {
    setWindowTitle(QStringLiteral("Vernacle - Special scale menu"));
    Body().addWidget(MakeHeading("lblHeading", QStringLiteral("Special scale menu")));
    auto* grid = new QGridLayout;
    grid->setSpacing(16);
    int place = 0;
    for (const Entry& entry : kEntries) {
        grid->addLayout(MakeEntry(entry), place / kSetupMenuColumns, place % kSetupMenuColumns);
        ++place;
    }
    for (int column = 0; column < kSetupMenuColumns; ++column) {
        grid->setColumnStretch(column, 1);
    }
    Body().addLayout(grid, 1);
}

QLayout* frmSetupMenu::MakeEntry(const Entry& entry) {
    auto* column = new QVBoxLayout;
    if (entry.sample) {
        auto* picture = new PictureBox(entry.picture, SampleArea(*entry.sample), UnitShape::Square);
        picture->setAccessibleName(QString::fromUtf8(entry.caption));
        DrawSample(picture->Surface(), *entry.sample);
        column->addWidget(picture, 1);
    } else {
        column->addStretch(1);
    }
    QPushButton* button =
        MakeButton(entry.button, QString::fromUtf8(entry.caption), QString::fromUtf8(entry.tip));
    connect(button, &QPushButton::clicked, this, [this, &entry] { EntryClicked(entry); });
    column->addWidget(button);
    return column;
}

// A setup begins to compute as it opens: what that would take is asked for before.
void frmSetupMenu::EntryClicked(const Entry& entry) {
    const bool warns = Service.specialScales && entry.kind;
    const std::string loss = warns ? LossBy(Design, Design.CurrentScale, *entry.kind) : "";
    if (loss.empty() || AskWhetherToContinue(this, loss)) {
        GoToPage(entry.page);
    }
}

void frmSetupMenu::CloseBoxClicked() {
    SaveSessionAndEnd();
}

} // namespace vernacle
