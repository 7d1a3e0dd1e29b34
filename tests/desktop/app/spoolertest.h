// The fixture of the tests that print on a real spooler: one of our own, shared by all of them.
#pragma once

#include <QPageLayout>

#include "support/formtest.h"
#include "support/spooler.h"
#include "support/svgpicture.h"

namespace vernacle::test {

// The spooler of this process, started when it is first wanted.
Spooler& TheSpooler();

// Why the tests cannot run; empty if they can. Where the spooler is wanted for certain (environment
// VERNACLE_SPOOLER=wanted) its lack is a failure.
std::string WhyNoSpooler();

// What a user chooses in the printer dialog.
struct PrintChoice {
    std::string queue;
    std::string paper; // "A4", "US Letter"; empty to leave what is proposed
    QPageLayout::Orientation orientation = QPageLayout::Portrait;
    int copies = 1;
    bool onBothSides = false;
    bool fromLowerTray = false;
    bool firstPageOnly = false;
    std::function<void()> meanwhile = {}; // what happens while the dialog is open
};

class SpoolerTest : public FormTest {
protected:
    void SetUp() override;
    void TearDown() override;

    // Answers the printer dialog that opens next.
    void Choose(const PrintChoice& choice);

    // The job's document as the printer got it.
    SvgPicture PageOf(const PrintJob& job) const;
    std::string AboutPageOf(const PrintJob& job) const; // what "pdfinfo" says
};

} // namespace vernacle::test
