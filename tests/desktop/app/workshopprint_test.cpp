// The true plate on paper: a printer's calibration is for what a printer prints, and for no file.
#include <algorithm>

#include <QComboBox>

#include "desktop/app/spoolertest.h"
#include "engine/core/service.h"
#include "support/pdfreader.h"

namespace vernacle::test {
namespace {

constexpr double kTrueToleranceMm = 0.02;

// The plate's box, by the trim marks at its edges and the ruler below it.
MmPoint SizeByTrimMarks(const SvgPicture& page) {
    MmPoint least{1e9, 1e9};
    MmPoint most{-1e9, -1e9};
    for (const Shape& shape : page.shapes) {
        if (shape.stroked && shape.WidthOfBox() < 0.001 && shape.HeightOfBox() > 0.001) {
            least.x = std::min(least.x, shape.Centre().x);
            most.x = std::max(most.x, shape.Centre().x);
        }
    }
    for (const Shape& shape : page.shapes) { // left of the plate stand the trim marks alone
        if (shape.stroked && shape.HeightOfBox() < 0.001 && shape.Centre().x < least.x) {
            least.y = std::min(least.y, shape.Centre().y);
            most.y = std::max(most.y, shape.Centre().y);
        }
    }
    return {most.x - least.x, most.y - least.y};
}

void ExpectSize(const SvgPicture& page, double widthMm, double heightMm) {
    const MmPoint size = SizeByTrimMarks(page);
    EXPECT_NEAR(size.x, widthMm, kTrueToleranceMm);
    EXPECT_NEAR(size.y, heightMm, kTrueToleranceMm);
}

class WorkshopPrintTest : public SpoolerTest {
protected:
    void SetUp() override {
        SpoolerTest::SetUp();
        if (IsSkipped() || HasFatalFailure()) {
            return;
        }
        StoreService(Program::Workshop);
        ResetDesign(Design);
        Design.PlateWidth = 70;
        Design.PlateHeight = 50;
        OpenPage("frmPreview");
        Design.CalibrationX = 1.1F;
        Design.CalibrationY = 0.9F;
    }
};

TEST_F(WorkshopPrintTest, CalibrationIsForAPrinterAndForNoFile) {
    Choose({.queue = "office", .paper = "A4"});
    Click("Print");
    ExpectSize(PageOf(TheSpooler().TakeJob("office")), 77, 45);
    ClickAndAnswer("Print", [this](QWidget& dialog) {
        auto* printers = dialog.findChild<QComboBox*>(QStringLiteral("printers"));
        printers->setCurrentIndex(printers->findText(QStringLiteral("PDF"), Qt::MatchContains));
        PrintTo(Path("plate.pdf"))(dialog);
    });
    ExpectSize(ReadPdf(Path("plate.pdf")), 70, 50);
    EXPECT_TRUE(said.empty());
}

} // namespace
} // namespace vernacle::test
