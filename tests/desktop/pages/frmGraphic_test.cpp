// The graphic page. Its entries start disabled; the tests enable them to reach their handlers.
#include <cstdlib>
#include <filesystem>

#include <QComboBox>
#include <QImage>

#include "desktop/pages/pagedrawing.h"
#include "engine/base/numbertext.h"
#include "engine/designfile/readwrite.h"
#include "engine/render/stages.h"
#include "surfaces/surfacetest.h"

namespace vernacle::test {
namespace {

using D = DesignRecord;

// A measure: its controls, its field, the limits of typing and those of the toolbar.
struct Measure {
    const char* stem; // of its box, behind "txt" and "lbl"
    const char* caption;
    const char* arrows;
    float D::*field;
    bool limitedAtOnce;
    float keptHighest;
    float keptLowest;

    std::string Box() const { return std::string("txt") + stem; }
    std::string Label() const { return std::string("lbl") + stem; }
    std::string Partner() const { return Box() + "UpDown"; }
    float Value() const { return Design.*field; }
};

// clang-format off
constexpr Measure kMeasures[] = {
    {"LeftToImage",   "Left to graphic:",       "UpDown1", &D::LeftToGraphic,   false, 180, 0},
    {"BottomToImage", "Bottom to graphic top:", "UpDown2", &D::BottomToGraphic, false, 120, 0},
    {"GraphicWidth",  "Graphic width:",         "UpDown3", &D::GraphicWidth,    true,  180, 2},
    {"GraphicHeight", "Graphic height:",        "UpDown4", &D::GraphicHeight,   true,  180, 2},
};
// clang-format on

class GraphicPageTest : public DrawingPageTest {
protected:
    GraphicPageTest() {
        Design.LeftToGraphic = 11;
        Design.BottomToGraphic = 22;
        Design.GraphicWidth = 33;
        Design.GraphicHeight = 44;
    }

    // The page with its entries enabled.
    void OpenGraphic() {
        OpenPage("frmGraphic");
        EnableAll();
    }

    // A key of the toolbar that goes nowhere: the page's own.
    void PressOwnKey() const { Click("Graphic"); }

    void GetGraphic(const std::string& file) {
        ClickAndAnswer("cmdGetGraphic", file.empty() ? DialogAnswer(Cancel) : TypeFile(file));
    }

    static std::string Upper(const std::string& text) {
        return QString::fromStdString(text).toUpper().toStdString();
    }
};

TEST_F(GraphicPageTest, CaptionsAndTips) {
    OpenPage("frmGraphic");
    for (const Measure& measure : kMeasures) {
        EXPECT_EQ(Shown(measure.Label()), measure.caption);
        EXPECT_FALSE(Box(measure.Box()).accessibleName().isEmpty());
    }
    ExpectShown({{"lblHeading", "Graphic entry"},
                 {"cmdGetGraphic", "Browse to get graphic"},
                 {"cmdRemoveGraphic", "Remove graphic"}});
    EXPECT_EQ(Find("cmdGetGraphic").toolTip(),
              QLatin1String("Get a graphic to place on the plate"));
    EXPECT_EQ(Find("cmdRemoveGraphic").toolTip(), QString());
}

TEST_F(GraphicPageTest, AllEntriesStartDisabled) {
    OpenPage("frmGraphic");
    for (const Measure& measure : kMeasures) {
        for (const std::string& control :
             {measure.Box(), measure.Label(), measure.Partner(), std::string(measure.arrows)}) {
            EXPECT_FALSE(Find(control).isEnabled()) << control;
        }
    }
    ExpectEnabled({"cmdGetGraphic", "cmdRemoveGraphic"}, false);
    ExpectOnlyPrintIsGreyed();
}

TEST_F(GraphicPageTest, ShowsWhatTheDesignBrought) {
    OpenPage("frmGraphic");
    EXPECT_EQ(Shown("lblGraphicName"), "(No graphic currently selected)");
    Design.GraphicFileName = "/marks/Größe.Bmp";
    Design.LeftToGraphic = -3.5F;
    OpenPage("frmGraphic");
    EXPECT_EQ(Shown("lblGraphicName"), "/MARKS/GRÖSSE.BMP") << "in upper case";
    EXPECT_EQ(Design.GraphicFileName, "/marks/Größe.Bmp") << "what is stored stays";
    EXPECT_EQ(TextOf("txtLeftToImage"), "-3.5");
    for (const Measure& measure : kMeasures) {
        EXPECT_EQ(TextOf(measure.Box()), PlainNumber(measure.Value()));
        EXPECT_EQ(TextOf(measure.Partner()), TextOf(measure.Box()));
    }
}

// Filling a box runs its handler, which holds the sizes to their limits.
TEST_F(GraphicPageTest, SizesOutOfRangeAreLimitedAtTheLoad) {
    Design.GraphicWidth = 1;
    Design.GraphicHeight = 300;
    OpenPage("frmGraphic");
    EXPECT_EQ(Design.GraphicWidth, 2);
    EXPECT_EQ(Design.GraphicHeight, 180);
    ExpectShown({{"txtGraphicWidth", "2"},
                 {"txtGraphicWidthUpDown", "2"},
                 {"txtGraphicHeight", "180"},
                 {"txtGraphicHeightUpDown", "180"}});
}

TEST_F(GraphicPageTest, DrawingPassesTheGraphicBy) {
    Design.DrawGraphic = "Y";
    Design.GraphicFileName = Path("none.bmp");
    OpenPage("frmGraphic");
    EXPECT_TRUE(WasRedrawn());
    EXPECT_EQ(ShownPlate(), DrawnPlate(TextTraits(), {Design.FontSize, Design.LabelSpacing}));
    EXPECT_EQ(Recorded(Picture("picPlate")).Count("PaintPicture"), 0U);
}

struct TypedRow {
    const char* typed;
    float distance;
    float size;
};

TEST_F(GraphicPageTest, BoxesAreReadPlainly) {
    const TypedRow rows[] = {
        {"30", 30, 30}, {"-20", -20, 2}, {"150", 150, 150},      {"180", 180, 180}, {"", 0, 2},
        {"abc", 0, 2},  {"2,5", 2, 2},   {"7.25", 7.25F, 7.25F}, {"2k2", 2, 2},
    };
    OpenGraphic();
    for (const TypedRow& row : rows) {
        for (const Measure& measure : kMeasures) {
            SCOPED_TRACE(measure.Box() + " " + row.typed);
            Wipe();
            Paste(measure.Box(), row.typed);
            EXPECT_EQ(measure.Value(), measure.limitedAtOnce ? row.size : row.distance);
            EXPECT_EQ(TextOf(measure.Partner()), PlainNumber(measure.Value()));
            EXPECT_TRUE(WasRedrawn());
        }
    }
}

TEST_F(GraphicPageTest, SizesAreLimitedAtOnceAndShowIt) {
    OpenGraphic();
    for (const char* box : {"txtGraphicWidth", "txtGraphicHeight"}) {
        Paste(box, "1");
        EXPECT_EQ(TextOf(box), "2");
        Paste(box, "300");
        EXPECT_EQ(TextOf(box), "180");
        Paste(box, "4000"); // the partner shows 180 already, and tells nothing back
        EXPECT_EQ(TextOf(box), "4000");
    }
    EXPECT_EQ(Design.GraphicWidth, 180);
    EXPECT_EQ(Design.GraphicHeight, 180);
}

// The first digit of a size may be below its limit.
TEST_F(GraphicPageTest, SizesAreTypedDigitByDigit) {
    struct Row {
        const char* typed;
        const char* shown; // when the box is left
        float value;
    };
    const Row rows[] = {{"15", "15", 15},        {"1", "2", 2},       {"0.5", "2", 2},
                        {"12.5", "12.5", 12.5F}, {"400", "180", 180}, {"4000", "180", 180},
                        {"007", "7", 7}};
    OpenGraphic();
    for (const char* name : {"GraphicWidth", "GraphicHeight"}) {
        for (const Row& row : rows) {
            SCOPED_TRACE(std::string(name) + " " + row.typed);
            const std::string box = std::string("txt") + name;
            Paste(box, "33");
            Box(box).setFocus();
            Box(box).selectAll();
            for (const char* key = row.typed; *key != '\0'; ++key) {
                Wipe();
                QTest::keyClick(&Box(box), *key);
                EXPECT_EQ(TextOf(box), std::string(row.typed, key + 1));
                EXPECT_TRUE(WasRedrawn());
            }
            const float value =
                name == std::string("GraphicWidth") ? Design.GraphicWidth : Design.GraphicHeight;
            EXPECT_EQ(value, row.value);
            EXPECT_EQ(TextOf(box + "UpDown"), PlainNumber(row.value));
            QTest::keyClick(&Box(box), Qt::Key_Tab);
            EXPECT_EQ(TextOf(box), row.shown);
        }
    }
}

// A shortcut of the toolbar reads what a press of its key reads.
TEST_F(GraphicPageTest, ShortcutsLeaveTheTypedBox) {
    for (const bool byKey : {false, true}) {
        OpenGraphic();
        Type("txtGraphicWidth", "2k2"); // plainly 2, as an entry 2200
        if (byKey) {
            QTest::keyClick(&Box("txtGraphicWidth"), Qt::Key_5, Qt::ControlModifier);
        } else {
            Click("Highlights");
        }
        Settle();
        EXPECT_EQ(PageName(), "frmHighlights");
        EXPECT_EQ(Design.GraphicWidth, 2);
        Design.GraphicWidth = 33;
    }
}

TEST_F(GraphicPageTest, DistancesTakeAnything) {
    OpenGraphic();
    Type("txtLeftToImage", "500");
    Paste("txtBottomToImage", "-40");
    EXPECT_EQ(Design.LeftToGraphic, 500);
    EXPECT_EQ(Design.BottomToGraphic, -40);
    EXPECT_EQ(TextOf("txtLeftToImage"), "500");
    EXPECT_EQ(TextOf("txtBottomToImage"), "-40");
}

TEST_F(GraphicPageTest, MeasuresAreIndependent) {
    OpenGraphic();
    Paste("txtGraphicHeight", "60");
    EXPECT_EQ(Design.GraphicHeight, 60);
    EXPECT_EQ(Design.GraphicWidth, 33);
    EXPECT_EQ(Design.LeftToGraphic, 11);
    EXPECT_EQ(Design.BottomToGraphic, 22);
    Paste("txtGraphicWidth", "70");
    EXPECT_EQ(Design.GraphicHeight, 60);
}

TEST_F(GraphicPageTest, ArrowsReachTheirRangesThroughThePartner) {
    OpenGraphic();
    for (const Measure& measure : kMeasures) {
        SCOPED_TRACE(measure.stem);
        Paste(measure.Box(), "50.5");
        StepUp(measure.arrows);
        EXPECT_EQ(TextOf(measure.Partner()), "51.5");
        EXPECT_EQ(TextOf(measure.Box()), "51.5");
        EXPECT_EQ(measure.Value(), 51.5F);
        Paste(measure.Box(), "180");
        Wipe();
        StepUp(measure.arrows);
        EXPECT_EQ(measure.Value(), 180) << "also where the toolbar allows less";
        Paste(measure.Box(), "1");
        StepDown(measure.arrows);
        StepDown(measure.arrows);
        EXPECT_EQ(measure.Value(), measure.limitedAtOnce ? 2 : 0);
    }
}

TEST_F(GraphicPageTest, PartnersFireTheirBoxes) {
    OpenGraphic();
    for (const Measure& measure : kMeasures) {
        SCOPED_TRACE(measure.stem);
        Wipe();
        Box(measure.Partner()).Show("300");
        const float kept = measure.limitedAtOnce ? 180 : 300;
        EXPECT_EQ(measure.Value(), kept);
        EXPECT_EQ(TextOf(measure.Box()), PlainNumber(kept));
        EXPECT_EQ(TextOf(measure.Partner()), TextOf(measure.Box())) << "they agree";
        EXPECT_TRUE(WasRedrawn());
        Wipe();
        Box(measure.Partner()).Show(TextOf(measure.Box()) + "."); // the same number
        EXPECT_FALSE(WasRedrawn()) << "only the box itself redraws";
    }
}

struct KeptRow {
    const char* box;
    const char* typed;
    float kept;
    const char* shown;
};

constexpr KeptRow kKeptRows[] = {
    {"txtLeftToImage", "-20", 0, "0"},       {"txtLeftToImage", "180", 180, "180"},
    {"txtLeftToImage", "181", 180, "180"},   {"txtLeftToImage", "2,5", 2.5F, "2.5"},
    {"txtBottomToImage", "150", 120, "120"}, {"txtBottomToImage", "120", 120, "120"},
    {"txtBottomToImage", "-1", 0, "0"},      {"txtBottomToImage", "1.2.3", 1.23F, "1.23"},
    {"txtGraphicWidth", "1", 2, "2"},        {"txtGraphicWidth", "300", 180, "180"},
    {"txtGraphicHeight", "1.5", 2, "2"},     {"txtGraphicHeight", "180", 180, "180"},
    {"txtGraphicHeight", "2k", 180, "180"},  {"txtGraphicWidth", "12,5", 12.5F, "12.5"},
};

TEST_F(GraphicPageTest, ToolbarReadsAndLimitsTheFour) {
    OpenGraphic();
    for (const KeptRow& row : kKeptRows) {
        SCOPED_TRACE(std::string(row.box) + " " + row.typed);
        Paste(row.box, PlainNumber(static_cast<float>(NumericValue(row.typed))));
        Paste(row.box, row.typed); // stays, as its partner has that number already
        EXPECT_EQ(TextOf(row.box), row.typed);
        PressOwnKey();
        EXPECT_EQ(TextOf(row.box), row.shown);
        for (const Measure& measure : kMeasures) {
            if (measure.Box() == row.box) {
                EXPECT_EQ(measure.Value(), row.kept);
            }
        }
    }
}

TEST_F(GraphicPageTest, LongNumbersStayWhatTheyAreWithTheToolbar) {
    OpenGraphic();
    Paste("txtLeftToImage", "12.3456789");
    EXPECT_FLOAT_EQ(Design.LeftToGraphic, 12.3456789F);
    Paste("txtBottomToImage", "1.23456789012");
    PressOwnKey();
    EXPECT_EQ(TextOf("txtBottomToImage"), "1.234568");
}

TEST_F(GraphicPageTest, DistancesAreLimitedWithTheToolbarAndNotBefore) {
    OpenGraphic();
    Paste("txtLeftToImage", "-20");
    Paste("txtBottomToImage", "150");
    EXPECT_EQ(Design.LeftToGraphic, -20);
    EXPECT_EQ(Design.BottomToGraphic, 150);
    PressOwnKey();
    EXPECT_EQ(Design.LeftToGraphic, 0);
    EXPECT_EQ(TextOf("txtLeftToImage"), "0");
    EXPECT_EQ(Design.BottomToGraphic, 120);
    EXPECT_EQ(TextOf("txtBottomToImage"), "120");
}

TEST_F(GraphicPageTest, EveryKeyOfTheToolbarLimits) {
    for (const char* key : kPageKeys) {
        SCOPED_TRACE(key);
        Design.DesignFileName.clear(); // so that a cancelled Save writes nothing
        OpenGraphic();
        Paste("txtLeftToImage", "-20");
        EXPECT_EQ(Design.LeftToGraphic, -20);
        if (OpensADialog(key)) {
            Answer(Cancel);
        }
        Click(key);
        EXPECT_EQ(Design.LeftToGraphic, 0);
    }
    EXPECT_TRUE(said.empty());
}

TEST_F(GraphicPageTest, SavedFileHoldsTheLimits) {
    Design.DrawGraphic = "Y";
    Design.GraphicFileName = "MARK.BMP";
    OpenGraphic();
    Paste("txtBottomToImage", "150");
    ClickAndAnswer("Save", TypeFile(Path("saved.VRN")));
    EXPECT_NE(ReadFile("saved.VRN").find("Bottom to graphic: 120"), std::string::npos);
}

TEST_F(GraphicPageTest, LongNamesBreakAndLeaveThePlateItsRoom) {
    OpenPage("frmGraphic");
    const int width = Find("picPlate").width();
    Design.GraphicFileName = "/" + std::string(300, 'm') + ".bmp";
    OpenPage("frmGraphic");
    Settle();
    EXPECT_EQ(Find("picPlate").width(), width);
    const auto& name = Find<QLabel>("lblGraphicName");
    EXPECT_GE(name.height(), name.heightForWidth(name.width())) << "all of it shows";
    EXPECT_GT(name.heightForWidth(name.width()), 5 * name.fontMetrics().height());
}

TEST_F(GraphicPageTest, ToolbarGivesTheTextsBack) {
    Design.TextString[3] = "mark";
    Design.NumberOfTexts = 0;
    OpenPage("frmGraphic");
    Design.TextString[3] = "spoilt";
    Design.NumberOfTexts = 9;
    PressOwnKey();
    EXPECT_EQ(Design.TextString[3], "mark");
    EXPECT_EQ(Design.NumberOfTexts, 1);
}

TEST_F(GraphicPageTest, OpenReadsWithTheFirstScaleActive) {
    Design.GraphicWidth = 77;
    Design.DrawGraphic = "Y";
    Design.GraphicFileName = "MARK.BMP";
    Design.DesignFileName = Path("graphic.VRN");
    WriteDesign(Design);
    ResetDesign(Design);
    OpenPage("frmGraphic");
    Design.ActiveScale = 3;
    ClickAndAnswer("Open", TypeFile(Path("graphic.VRN")));
    EXPECT_EQ(Design.ActiveScale, 1);
    EXPECT_EQ(TextOf("txtGraphicWidth"), "77");
}

TEST_F(GraphicPageTest, ChosenFileIsStoredInUpperCase) {
    const std::string file = WriteFile("Logo mark.Bmp", "x");
    OpenGraphic();
    Wipe();
    ClickAndAnswer("cmdGetGraphic", [&](QWidget& dialog) {
        EXPECT_EQ(dialog.windowTitle(), QLatin1String("Get graphic"));
        const auto* kinds = dialog.findChild<QComboBox*>(QStringLiteral("fileTypeCombo"));
        EXPECT_EQ(kinds->currentText().trimmed(),
                  QLatin1String("Graphic files (.bmp, .gif, .ico, .jpg)"));
        TypeFile(file)(dialog);
    });
    EXPECT_EQ(Design.GraphicFileName, Upper(file));
    EXPECT_EQ(Shown("lblGraphicName"), Upper(file));
    EXPECT_EQ(Design.DrawGraphic, "Y");
    EXPECT_TRUE(WasRedrawn());
}

TEST_F(GraphicPageTest, CancelledDialogGivesNoNameAndDrawsAllTheSame) {
    Design.GraphicFileName = "MARK.BMP";
    Design.DrawGraphic = "N";
    OpenGraphic();
    GetGraphic("");
    EXPECT_EQ(Design.GraphicFileName, "");
    EXPECT_EQ(Shown("lblGraphicName"), "");
    EXPECT_EQ(Design.DrawGraphic, "Y");
}

TEST_F(GraphicPageTest, RemovingLeavesTheBoxes) {
    Design.DrawGraphic = "Y";
    Design.GraphicFileName = "MARK.BMP";
    OpenGraphic();
    Wipe();
    Click("cmdRemoveGraphic");
    EXPECT_EQ(Design.GraphicFileName, "");
    EXPECT_EQ(Shown("lblGraphicName"), "") << "not the words of the load";
    EXPECT_EQ(Design.DrawGraphic, "N");
    EXPECT_TRUE(WasRedrawn());
    const char* const shown[] = {"11", "22", "33", "44"};
    for (int index = 0; index < 4; ++index) {
        EXPECT_EQ(kMeasures[index].Value(), 0);
        EXPECT_EQ(TextOf(kMeasures[index].Box()), shown[index]);
    }
    Paste("txtGraphicHeight", "50");
    EXPECT_EQ(Design.GraphicHeight, 50);
    EXPECT_EQ(Design.GraphicWidth, 0);
    EXPECT_EQ(Design.LeftToGraphic, 0);
    EXPECT_EQ(Design.BottomToGraphic, 0);
    EXPECT_EQ(Design.DrawGraphic, "N");
}

TEST_F(GraphicPageTest, TabFollowsReadingOrder) {
    OpenGraphic();
    ExpectTabOrder("txtLeftToImage txtBottomToImage txtGraphicWidth txtGraphicHeight "
                   "cmdGetGraphic cmdRemoveGraphic");
}

TEST_F(GraphicPageTest, CloseBoxKeepsTheSession) {
    OpenGraphic();
    Type("txtLeftToImage", "37");
    CloseByUser(Page());
    EXPECT_TRUE(TakeProcessEnd());
    ASSERT_TRUE(Exists("LASTSESSION.VRN"));
    EXPECT_NE(ReadFile("LASTSESSION.VRN").find("Left to graphic: 37"), std::string::npos);
}

// From the dialog to the plate: the stored name finds its file in any case, and the picture fills
// its box.
class DrawnGraphicTest : public GraphicPageTest {
protected:
    static constexpr int kPixelsAcross = 2400;

    // The plate of the page with the graphic's stage in service.
    static QImage Draw() {
        const DrawingStage stages[] = {ClearStage, TicsStage, GraphicStage, TitlesStage};
        return ImageOfPlate(stages, kPixelsAcross);
    }

    // The box around all that is red or blue, as the picture and nothing else, in mm from the
    // plate's left and bottom edges.
    static QRectF PictureIn(const QImage& image) {
        QRect found;
        for (int y = 0; y < image.height(); ++y) {
            for (int x = 0; x < image.width(); ++x) {
                const QColor colour = image.pixelColor(x, y);
                if (std::abs(colour.red() - colour.blue()) > 200) {
                    found |= QRect(x, y, 1, 1);
                }
            }
        }
        const double unit = image.width() / 12000.;
        const double unitDown = image.height() / 9000.;
        const PlateFrame frame = FrameOf(Design, TextTraits());
        const double across = 2 * frame.upPerHalfMm * frame.aspect;
        const double down = 2 * frame.upPerHalfMm;
        const double left = 3400 - across * double{Design.PlateWidth} / 2;
        const double bottom = 4400 + down * double{Design.PlateHeight} / 2;
        return {(found.left() / unit - left) / across, (bottom - found.top() / unitDown) / down,
                found.width() / unit / across, found.height() / unitDown / down};
    }
};

TEST_F(DrawnGraphicTest, PicturesOfEveryKindStandInTheirBox) {
    std::filesystem::create_directory(Path("My Marks"));
    for (const char* kind : {"BMP", "GIF", "ICO", "JPEG"}) {
        SCOPED_TRACE(kind);
        const std::string name = std::string("My Marks/logo.") + (*kind == 'B' ? "bmp" : kind);
        const std::string file = WriteFile(name, PictureBytes(kind));
        OpenGraphic();
        GetGraphic(file);
        Paste("txtLeftToImage", "12");
        Paste("txtBottomToImage", "15");
        Paste("txtGraphicWidth", "20");
        Paste("txtGraphicHeight", "6");
        PressOwnKey();
        const QRectF box = PictureIn(Draw());
        EXPECT_NEAR(box.left(), 12, 0.1);
        EXPECT_NEAR(box.top(), 15, 0.1) << "its top edge, from the plate's bottom";
        EXPECT_NEAR(box.width(), 20, 0.2);
        EXPECT_NEAR(box.height(), 6, 0.2);
    }
}

TEST_F(DrawnGraphicTest, PictureThatDoesNotLoadLeavesThePlate) {
    OpenGraphic();
    const QImage without = Draw();
    GetGraphic(WriteFile("broken.gif", "GIF89a but no more"));
    EXPECT_EQ(Design.DrawGraphic, "Y");
    EXPECT_EQ(Draw(), without);
    GetGraphic(Path("missing.bmp"));
    EXPECT_EQ(Design.GraphicFileName, Upper(Path("missing.bmp")));
    EXPECT_EQ(Draw(), without);
    GetGraphic("");
    EXPECT_EQ(Draw(), without);
    EXPECT_TRUE(said.empty());
}

TEST_F(DrawnGraphicTest, RemovedGraphicIsNotDrawnWhateverIsTyped) {
    OpenGraphic();
    const QImage without = Draw();
    GetGraphic(WriteFile("logo.bmp", PictureBytes("BMP")));
    EXPECT_NE(Draw(), without);
    Click("cmdRemoveGraphic");
    Paste("txtGraphicWidth", "20");
    EXPECT_EQ(Draw(), without);
}

} // namespace
} // namespace vernacle::test
