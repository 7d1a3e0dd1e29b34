#include "apptest.h"

namespace vernacle::test {
namespace {

struct TitleRow {
    const char* form;
    const char* title;
};

class TitlesTest : public AppTest {};

constexpr TitleRow kPageTitles[] = {
    {"frmPlate", "Vernacle - Plate design"},    {"frmScales", "Vernacle - Scale design"},
    {"frmPreview", "Vernacle - Preview"},       {"frmText", "Vernacle - Text entry"},
    {"frmGraphic", "Vernacle - Graphic entry"}, {"frmHighlights", "Vernacle - Highlight entry"},
};

TEST_F(TitlesTest, DesignPagesNameTheFile) {
    for (const TitleRow& row : kPageTitles) {
        Design.DesignFileName.clear();
        EXPECT_EQ(TitleOf(OpenPage(row.form)), row.title);
        Design.DesignFileName = "/designs/Prüf plate.VRN";
        EXPECT_EQ(TitleOf(Page()), row.title) << "set only when the page loads";
        EXPECT_EQ(TitleOf(OpenPage(row.form)),
                  std::string(row.title) + " - /designs/Prüf plate.VRN");
    }
}

constexpr TitleRow kOtherForms[] = {
    {"frmOpening", "Vernacle - Welcome !"},
    {"frmExit", "Vernacle - Exit ?"},
    {"frmCalibrate", "Vernacle - Calibration routine"},
    {"frmSelectTics", "Vernacle - select tics"},
    {"frmShowTicInfo", "Vernacle - Show tic info"},
    {"frmTicsHelp", "Vernacle - Tics Help"},
};

TEST_F(TitlesTest, OtherFormsDoNot) {
    for (const TitleRow& row : kOtherForms) {
        for (const char* file : {"", "/designs/mine.VRN"}) {
            Design.DesignFileName = file;
            EXPECT_EQ(TitleOf(*MakeForm(row.form)), row.title);
        }
    }
}

} // namespace
} // namespace vernacle::test
