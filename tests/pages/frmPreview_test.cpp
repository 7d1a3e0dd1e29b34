#include "previewtest.h"

#include <QLabel>
#include <QPushButton>

#include "scale/scale.h"

namespace vernacle::test {
namespace {

class PreviewPageTest : public PreviewTest {};

TEST_F(PreviewPageTest, DrawsTheDesign) {
    OpenPreview();
    ExpectPlainPicture();
    EXPECT_EQ(Shown().front(), "Clear");
    EXPECT_FLOAT_EQ(Drawing.PlateScale, 3200 / 75.F);
    EXPECT_EQ(Drawing.PlateCentreX, 6000);
    EXPECT_EQ(Drawing.PlateCentreY, 4300);
    EXPECT_FLOAT_EQ(Drawing.DegreesPerRadian, 57.29578F);
}

TEST_F(PreviewPageTest, ComputesTheScaleTables) {
    Design.NrOfTicmarks[1] = 20;
    Design.LabelsEveryHowMany[1] = 10;
    Design.ScaleLengthUnits[1] = 200;
    OpenPreview();
    EXPECT_FLOAT_EQ(Design.StandardDeflection[1][5], 0.25F);
    EXPECT_EQ(Design.StandardLabel[1][10], "100");
    const auto texts = TextsOf("picPlate");
    EXPECT_NE(std::find(texts.begin(), texts.end(), "200"), texts.end());
}

struct LoadRow {
    const char* name;
    void (*before)();
    bool (*after)();
};

const LoadRow kLoads[] = {
    {"font", [] { Design.FontName = "Courier"; }, [] { return Design.FontName == "Arial"; }},
    {"scales", [] { Design.NumberOfScales = 3; }, [] { return Design.NumberOfScales == 1; }},
    {"no scale", [] { Design.NumberOfScales = 0; }, [] { return Design.NumberOfScales == 1; }},
    {"scale 0", [] { Design.CurrentScale = 0; }, [] { return Design.CurrentScale >= 0; }},
    {"width", [] { Design.PlateWidth = 0; }, [] { return Design.PlateWidth == 50; }},
    {"wide", [] { Design.PlateWidth = 181; }, [] { return Design.PlateWidth == 180; }},
    {"height", [] { Design.PlateHeight = -1; }, [] { return Design.PlateHeight == 50; }},
    {"tics", [] { Design.NrOfTicmarks[1] = 0; }, [] { return Design.NrOfTicmarks[1] == 50; }},
    {"colour", [] { Design.ScaleColor[1] = 0xFF; }, [] { return Design.ScaleColor[1] == 0; }},
    {"special", [] { Design.ScaleColor[1] = -1; }, [] { return Design.ScaleColor[1] == 0; }},
    {"exponent", [] { Design.LinearityExponent[1] = 2; },
     [] { return Design.LinearityExponent[1] == 1; }},
    {"no aspect", [] { Design.AspectRatio = 0; }, [] { return Design.AspectRatio == 1; }},
    {"below 0", [] { Design.AspectRatio = -0.7F; }, [] { return Design.AspectRatio == 1; }},
    {"low", [] { Design.AspectRatio = 0.3F; }, [] { return Design.AspectRatio == 0.5F; }},
    {"high", [] { Design.AspectRatio = 2; }, [] { return Design.AspectRatio == 1.15F; }},
    {"rounded", [] { Design.AspectRatio = 0.777F; }, [] { return Design.AspectRatio == 0.78F; }},
};

TEST_F(PreviewPageTest, LoadForcesValues) {
    for (const LoadRow& row : kLoads) {
        ResetDesign();
        row.before();
        OpenPreview();
        EXPECT_TRUE(row.after()) << row.name;
        ExpectPlainPicture();
    }
    EXPECT_TRUE(said.empty());
}

TEST_F(PreviewPageTest, DrawnLabelsUndoTheirDeletion) {
    for (const char* printText : {"N", "Y"}) {
        Design.PrintText = printText;
        Design.StandardLabelYN[1][10] = "N";
        OpenPreview();
        EXPECT_EQ(Design.StandardLabelYN[1][10], printText);
    }
}

TEST_F(PreviewPageTest, ItsChangesStandOnOtherPagesAndInTheFile) {
    Design.NumberOfScales = 3;
    Design.FontName = "Courier";
    Design.ScaleColor[1] = 0xFF;
    Design.DesignFileName = Path("mine.VRN");
    OpenPreview();
    Click("Plate");
    Settle();
    EXPECT_EQ(Design.NumberOfScales, 1);
    EXPECT_EQ(Design.FontName, "Arial");
    EXPECT_EQ(Design.ScaleColor[1], 0);
    SaveDesign(Design.DesignFileName);
    const std::string file = ReadFile("mine.VRN");
    for (const char* line :
         {"Font style: Arial\r\n", "Number of scales: 1\r\nScale color: 0\r\n"}) {
        EXPECT_NE(file.find(line), std::string::npos) << line;
    }
}

TEST_F(PreviewPageTest, SizesAreCopiedAtTheLoad) {
    OpenPreviewAt(0.8F);
    const Calls before = Shown();
    Design.FontSize = 16;
    Design.LabelSpacing = 20;
    Paste("txtAspect", "0.80"); // draws anew
    EXPECT_EQ(Shown(), before);
    OpenPreview();
    EXPECT_NE(Shown(), before);
}

TEST_F(PreviewPageTest, BoxesShowTheAspect) {
    OpenPreviewAt(0.8F);
    ExpectAspect(0.8F, ".8", "80");
    OpenPreviewAt(1);
    ExpectAspect(1, "1", "100");
    OpenPreviewAt(0.99F);
    ExpectAspect(0.99F, ".99", "99");
}

struct ToolRow {
    const char* name;
    const char* caption;
};

constexpr ToolRow kTools[] = {
    {"cmdCircle", "Circle"},
    {"cmdGrid", "Grid"},
    {"cmdPointer", "Pointer"},
    {"cmdHPGL", "HP-GL"},
};

TEST_F(PreviewPageTest, ToolsAreNamedEnabledAndExplained) {
    OpenPreview();
    for (const ToolRow& row : kTools) {
        const auto& tool = Find<QPushButton>(row.name);
        EXPECT_EQ(tool.text().toStdString(), row.caption);
        EXPECT_EQ(tool.accessibleName(), tool.text());
        EXPECT_TRUE(tool.isEnabled());
        EXPECT_FALSE(tool.toolTip().isEmpty());
    }
    for (const char* box : {"txtAspect", "txtAspectUpDown"}) {
        EXPECT_FALSE(Box(box).accessibleName().isEmpty());
        EXPECT_TRUE(Box(box).isEnabled());
    }
}

TEST_F(PreviewPageTest, TabFollowsTheReadingOrder) {
    OpenPreview();
    Box("txtAspect").setFocus();
    for (const char* next : {"txtAspectUpDown", "cmdCircle", "cmdGrid", "cmdPointer", "cmdHPGL"}) {
        QTest::keyClick(Page().focusWidget(), Qt::Key_Tab);
        EXPECT_EQ(Page().focusWidget()->objectName().toStdString(), next);
    }
}

TEST_F(PreviewPageTest, PlotterPageStandsAboveIt) {
    const QWidget* preview = &OpenPreview();
    Answer([](QWidget& form) {
        EXPECT_EQ(form.objectName().toStdString(), "frmHPGL");
        EXPECT_TRUE(form.isModal());
        Cancel(form);
    });
    Click("cmdHPGL");
    EXPECT_TRUE(AllAnswered());
    EXPECT_EQ(&Page(), preview);
}

TEST_F(PreviewPageTest, PictureKeepsTheShapeOfTheScreensUnits) {
    OpenPreviewAt(1);
    // A unit is 1920 / 12000 wide and 1080 / 9000 high: a plate of 75 x 50 is 2 : 1 on the screen.
    const QImage picture = Find("picPlate").grab().toImage();
    int left = picture.width();
    int right = 0;
    int top = picture.height();
    int bottom = 0;
    for (int x = 0; x < picture.width(); ++x) {
        for (int y = 0; y < picture.height(); ++y) {
            if (picture.pixelColor(x, y) != QColor(Qt::white)) {
                left = std::min(left, x);
                right = std::max(right, x);
                top = std::min(top, y);
                bottom = std::max(bottom, y);
            }
        }
    }
    EXPECT_GT(left, 0); // all of it shows
    EXPECT_GT(top, 0);
    EXPECT_LT(right, picture.width() - 1);
    EXPECT_LT(bottom, picture.height() - 1);
    EXPECT_GT(right - left, picture.width() / 2);
}

} // namespace
} // namespace vernacle::test
