#include "previewtest.h"

namespace vernacle::test {
namespace {

class PreviewPageTest : public PreviewTest {
protected:
    // The plate's box: the rows and columns that are black for a third of the picture.
    static QRect PlateOn(const QImage& picture) {
        std::vector<int> inRow(static_cast<std::size_t>(picture.height()));
        std::vector<int> inColumn(static_cast<std::size_t>(picture.width()));
        for (int x = 0; x < picture.width(); ++x) {
            for (int y = 0; y < picture.height(); ++y) {
                const bool dark = picture.pixelColor(x, y).lightness() < 0x80;
                inRow[static_cast<std::size_t>(y)] += dark ? 1 : 0;
                inColumn[static_cast<std::size_t>(x)] += dark ? 1 : 0;
            }
        }
        const auto ends = [](const std::vector<int>& counts, int enough) {
            const auto full = [enough](int count) { return count > enough; };
            const auto first = std::find_if(counts.begin(), counts.end(), full);
            const auto last = std::find_if(counts.rbegin(), counts.rend(), full);
            return std::pair{static_cast<int>(first - counts.begin()),
                             static_cast<int>(counts.rend() - last) - 1};
        };
        const auto [top, bottom] = ends(inRow, picture.width() / 3);
        const auto [left, right] = ends(inColumn, picture.height() / 3);
        return {QPoint(left, top), QPoint(right, bottom)};
    }
};

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
    {"font size", [] { Design.FontSize = 0; }, [] { return Design.FontSize == 8; }},
    {"spacing", [] { Design.LabelSpacing = -300; }, [] { return Design.LabelSpacing >= -200; }},
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
        ResetDesign(Design);
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
    ClickAndSettle("Plate");
    EXPECT_EQ(Design.NumberOfScales, 1);
    EXPECT_EQ(Design.FontName, "Arial");
    EXPECT_EQ(Design.ScaleColor[1], 0);
    SaveDesign(Design, Design.DesignFileName);
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
    ExpectTabOrder("txtAspect txtAspectUpDown cmdCircle cmdGrid cmdPointer cmdHPGL");
}

TEST_F(PreviewPageTest, PlotterPageStandsAboveIt) {
    const QWidget* preview = &OpenPreview();
    ClickAndAnswer("cmdHPGL", [](QWidget& form) {
        EXPECT_EQ(form.objectName().toStdString(), "frmHPGL");
        EXPECT_TRUE(form.isModal());
        Cancel(form);
    });
    EXPECT_EQ(&Page(), preview);
}

TEST_F(PreviewPageTest, FreeTextsAreCounted) {
    Design.TextString[1] = "a";
    Design.TextString[7] = "b";
    OpenPreview();
    EXPECT_TRUE(Find("picPlate").accessibleDescription().endsWith(QStringLiteral(": 2")));
}

// A unit is 1920 / 12000 wide and 1080 / 9000 high, here in hundredths of the screen's sides.
TEST_F(PreviewPageTest, PictureKeepsTheShapeOfTheScreensUnits) {
    OpenPreviewAt(1);
    const QRect plate = PlateOn(Find("picPlate").grab().toImage());
    const double widthUnits = 6400; // 75 mm, and 50 mm is the height
    const double heightUnits = 6400 * 50 / 75.;
    const double expected = widthUnits / 12000 * 1920 / (heightUnits / 9000 * 1080);
    EXPECT_NEAR(double(plate.width()) / plate.height(), expected, 0.03);
}

TEST_F(PreviewPageTest, AllOfAPlateOfAnyShapeShows) {
    for (const auto& [width, height] : {std::pair{75.F, 50.F}, {50.F, 75.F}, {180.F, 180.F}}) {
        SCOPED_TRACE(width);
        Design.PlateWidth = width;
        Design.PlateHeight = height;
        Design.ActualVirtualOffset = 0; // else the pointer begins far below
        Drawing.PointerShown = 0;
        OpenPreviewAt(1.15F);
        Click("cmdPointer");
        const QRect all = Find("picPlate").rect();
        const QRect painted = PaintedOn("picPlate");
        EXPECT_TRUE(all.adjusted(1, 1, -1, -1).contains(painted));
    }
}

} // namespace
} // namespace vernacle::test
