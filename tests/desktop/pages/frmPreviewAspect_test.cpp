// The aspect entry of the preview page: its two boxes, which rewrite each other, and the arrows.
#include <QToolButton>

#include "engine/base/numbertext.h"
#include "previewtest.h"

namespace vernacle::test {
namespace {

class AspectTest : public PreviewTest {
protected:
    // The box that is not typed into shows the aspect after each key.
    void ExpectOtherBoxAgrees(const std::string& typed) const {
        const double aspect = double{Design.AspectRatio};
        if (typed == "txtAspect") {
            EXPECT_EQ(TextOf("txtAspectUpDown"), PlainNumber(static_cast<float>(aspect * 100)));
        } else {
            EXPECT_EQ(TextOf("txtAspect"), PlainNumber(Design.AspectRatio));
        }
    }

    // Holds the arrow down until that is reached.
    template <typename Reached>
    void Hold(const std::string& arrow, const Reached& reached) const {
        constexpr int kPatience = 20000; // ms
        auto& button = Find<QToolButton>(arrow);
        QTest::mousePress(&button, Qt::LeftButton);
        EXPECT_TRUE(QTest::qWaitFor(reached, kPatience)) << arrow;
        EXPECT_TRUE(button.isDown()) << "still held";
        QTest::mouseRelease(&button, Qt::LeftButton);
    }
};

struct EntryRow {
    const char* entered;
    float aspect;
    const char* ratio; // what the boxes show then
    const char* percent;
};

// Written in one go over an aspect of .8.
constexpr EntryRow kRatios[] = {
    {"0.4", 0.5F, ".5", "50"},         {"1.2", 1.15F, "1.15", "115"},
    {"0.777", 0.78F, ".78", "78"},     {"0.499", 0.5F, ".5", "50"},
    {"0.5", 0.5F, ".5", "50"},         {"0.501", 0.5F, ".5", "50"},
    {"0.505", 0.51F, ".51", "51"},     {"0.51", 0.51F, ".51", "51"},
    {"1.14", 1.14F, "1.14", "114"},    {"1.144", 1.14F, "1.14", "114"},
    {"1.145", 1.15F, "1.15", "115"},   {"1.15", 1.15F, "1.15", "115"},
    {"1.151", 1.15F, "1.15", "115"},   {"1", 1, "1", "100"},
    {"0,9", 0.9F, ".9", "90"},         {" 0.9 ", 0.9F, ".9", "90"},
    {"900m", 0.9F, ".9", "90"},        {"", 0.5F, ".5", "50"},
    {"abc", 0.5F, ".5", "50"},         {"-1", 0.5F, ".5", "50"},
    {"9E99", 1.15F, "1.15", "115"},    {"0.90000000", 0.9F, ".9", "90"},
    {"0.900000000", 0.8F, ".8", "80"}, // eleven characters are ignored
    {"0.80", 0.8F, ".8", "80"},
};

TEST_F(AspectTest, RatioWrittenInOneGo) {
    for (const EntryRow& row : kRatios) {
        SCOPED_TRACE(row.entered);
        OpenPreviewAt(0.8F);
        Paste("txtAspect", row.entered);
        ExpectAspect(row.aspect, row.ratio, row.percent);
        ExpectPlainPicture();
    }
    EXPECT_TRUE(said.empty());
}

constexpr EntryRow kPercents[] = {
    {"40", 0.5F, ".5", "50"},
    {"49.9", 0.5F, ".5", "50"},
    {"50", 0.5F, ".5", "50"},
    {"51", 0.51F, ".51", "51"},
    {"77.7", 0.78F, ".78", "78"},
    {"114", 1.14F, "1.14", "114"},
    {"115", 1.15F, "1.15", "115"},
    {"116", 1.15F, "1.15", "115"},
    {"200", 1.15F, "1.15", "115"},
    {"100 %", 1, "1", "100"},
    {"", 0.5F, ".5", "50"},
    {"abc", 0.5F, ".5", "50"},
    {"-90", 0.5F, ".5", "50"},
    {"1e9", 1.15F, "1.15", "115"},
    {"1e999", 1.15F, "1.15", "115"},
    {" 90", 0.9F, ".9", "90"},
    {"80.0", 0.8F, ".8", "80"},
    {"90,9", 0.9F, ".9", "90"},
    {"90.0000000000", 0.9F, ".9", "90"},
};

// The ratio's box, which it writes, draws.
TEST_F(AspectTest, PercentWrittenInOneGo) {
    for (const EntryRow& row : kPercents) {
        SCOPED_TRACE(row.entered);
        OpenPreviewAt(0.8F);
        Paste("txtAspectUpDown", row.entered);
        ExpectAspect(row.aspect, row.ratio, row.percent);
        ExpectPlainPicture();
    }
}

struct TypedRow {
    const char* box;
    const char* keys;
    EntryRow after;
};

// What the boxes show once the typed one is left. The first key replaces the selected text.
constexpr TypedRow kTyped[] = {
    {"txtAspect", ".8", {"", 0.8F, ".8", "80"}},
    {"txtAspect", "0.8", {"", 0.8F, ".8", "80"}},
    {"txtAspect", "0,9", {"", 0.9F, ".9", "90"}},
    {"txtAspect", "1.1", {"", 1.1F, "1.1", "110"}},
    {"txtAspect", "1.15", {"", 1.15F, "1.15", "115"}},
    {"txtAspect", "0.777", {"", 0.78F, ".78", "78"}},
    {"txtAspect", "0.4", {"", 0.5F, ".5", "50"}},
    {"txtAspect", "0.", {"", 0.5F, ".5", "50"}},
    {"txtAspect", "1.", {"", 1, "1", "100"}},
    {"txtAspect", "9", {"", 1.15F, "1.15", "115"}},
    {"txtAspect", "x", {"", 0.5F, ".5", "50"}},
    {"txtAspectUpDown", "80", {"", 0.8F, ".8", "80"}},
    {"txtAspectUpDown", "110", {"", 1.1F, "1.1", "110"}},
    {"txtAspectUpDown", "99.9", {"", 1, "1", "100"}},
    {"txtAspectUpDown", "8", {"", 0.5F, ".5", "50"}},
    {"txtAspectUpDown", "1000", {"", 1.15F, "1.15", "115"}},
    {"txtAspectUpDown", "x", {"", 0.5F, ".5", "50"}},
};

// The value, the other box and the picture follow each key; the typed box stays as it is typed.
TEST_F(AspectTest, TypedCharacterByCharacter) {
    for (const TypedRow& row : kTyped) {
        SCOPED_TRACE(std::string(row.box) + " " + row.keys);
        OpenPreviewAt(0.65F);
        EntryBox& box = Box(row.box);
        box.setFocus();
        box.selectAll();
        for (const char* key = row.keys; *key != '\0'; ++key) {
            QTest::keyClick(&box, *key);
            const std::string typed(row.keys, key + 1);
            EXPECT_EQ(box.Text(), typed);
            ExpectPlainPicture();
            ExpectOtherBoxAgrees(row.box);
        }
        EXPECT_FLOAT_EQ(Design.AspectRatio, row.after.aspect);
        QTest::keyClick(&box, Qt::Key_Tab);
        ExpectAspect(row.after.aspect, row.after.ratio, row.after.percent);
        ExpectPlainPicture();
    }
}

TEST_F(AspectTest, CursorStaysInTheMiddle) {
    OpenPreviewAt(0.8F);
    EntryBox& box = Box("txtAspect");
    box.setFocus();
    box.setCursorPosition(0);
    QTest::keyClick(&box, Qt::Key_0);
    EXPECT_EQ(TextOf("txtAspect"), "0.8");
    EXPECT_EQ(box.cursorPosition(), 1);
}

TEST_F(AspectTest, ErasedBoxShowsTheSmallestWhenItIsLeft) {
    OpenPreviewAt(0.8F);
    Type("txtAspect", "");
    EXPECT_EQ(TextOf("txtAspect"), "");
    EXPECT_EQ(TextOf("txtAspectUpDown"), "50");
    Click("picPlate");
    ExpectAspect(0.5F, ".5", "50");
}

struct StepRow {
    float from;
    float up;
    float down;
};

constexpr StepRow kSteps[] = {
    {0.5F, 0.51F, 0.5F}, {0.51F, 0.52F, 0.5F},  {0.75F, 0.76F, 0.74F},  {0.8F, 0.81F, 0.79F},
    {1, 1.01F, 0.99F},   {1.13F, 1.14F, 1.12F}, {1.14F, 1.15F, 1.13F},  {1.15F, 1.15F, 1.14F},
    {0.3F, 0.51F, 0.5F}, {2, 1.15F, 1.14F},     {0.777F, 0.79F, 0.77F},
};

TEST_F(AspectTest, ArrowsStep) {
    for (const StepRow& row : kSteps) {
        SCOPED_TRACE(row.from);
        OpenPreviewAt(row.from);
        StepUp("UpDown1");
        Settle();
        EXPECT_FLOAT_EQ(Design.AspectRatio, row.up);
        ExpectPlainPicture();
        OpenPreviewAt(row.from);
        StepDown("UpDown1");
        Settle();
        EXPECT_FLOAT_EQ(Design.AspectRatio, row.down);
        ExpectPlainPicture();
    }
}

TEST_F(AspectTest, ArrowsGetOnFromEveryHundredth) {
    for (int percent = 50; percent <= 115; ++percent) {
        const auto aspect = static_cast<float>(percent / 100.);
        OpenPreviewAt(aspect);
        StepUp("UpDown1");
        Settle();
        EXPECT_EQ(Design.AspectRatio > aspect, percent < 115) << percent;
        OpenPreviewAt(aspect);
        StepDown("UpDown1");
        Settle();
        EXPECT_EQ(Design.AspectRatio<aspect, percent> 50) << percent;
    }
}

// What a load of the page does to the design they do too; the page itself stays.
TEST_F(AspectTest, ArrowsLoadAnewAndKeepThePage) {
    const QPointer<QWidget> before = &OpenPreviewAt(0.8F);
    const QPointer<QWidget> box = &Box("txtAspect");
    Design.DesignFileName = "/designs/mine.VRN";
    Design.FontName = "Courier";
    Design.NumberOfScales = 3;
    Design.FontSize = 16;
    Design.PlateWidth = 500;
    Design.TextString[1] = "a";
    Design.StandardDeflection[1][5] = 9;
    StepUp("UpDown1");
    Settle();
    EXPECT_EQ(&Page(), before);
    EXPECT_EQ(&Box("txtAspect"), box);
    EXPECT_EQ(Page().windowTitle().toStdString(), "Vernacle - Preview - /designs/mine.VRN");
    ExpectAspect(0.81F, ".81", "81");
    EXPECT_EQ(Design.FontName, "Arial");
    EXPECT_EQ(Design.NumberOfScales, 1);
    EXPECT_EQ(Design.PlateWidth, 180);
    EXPECT_NE(Design.StandardDeflection[1][5], 9);
    EXPECT_TRUE(Find("picPlate").accessibleDescription().endsWith(QStringLiteral(": 1")));
    ExpectPlainPicture(); // with the font size of now
    StepUp("UpDown1");
    EXPECT_TRUE(Find("picPlate").accessibleDescription().endsWith(QStringLiteral(": 1")));
}

TEST_F(AspectTest, HeldArrowsGoOn) {
    OpenPreviewAt(0.8F);
    const QWidget* page = &Page();
    const QWidget* arrow = &Find("UpDown1Up");
    Hold("UpDown1Up", [] { return Design.AspectRatio > 0.835F; });
    EXPECT_EQ(&Page(), page);
    EXPECT_EQ(&Find("UpDown1Up"), arrow);
    ExpectPlainPicture();
    Hold("UpDown1Down", [] { return Design.AspectRatio < 0.795F; });
    ExpectPlainPicture();
    ExpectAspect(Design.AspectRatio, PlainNumber(Design.AspectRatio),
                 PlainNumber(static_cast<float>(double{Design.AspectRatio} * 100)));
}

TEST_F(AspectTest, ArrowsStepFromWhatIsTyped) {
    for (const char* box : {"txtAspect", "txtAspectUpDown"}) {
        SCOPED_TRACE(box);
        OpenPreviewAt(0.65F);
        Type(box, box == std::string("txtAspect") ? "0.4" : "40");
        StepUp("UpDown1");
        Settle();
        ExpectAspect(0.51F, ".51", "51");
        ExpectPlainPicture();
    }
}

// A page that comes up over another design takes nothing from what was typed on the one before.
TEST_F(AspectTest, AnUnfinishedTextGoesWithItsPage) {
    OpenPreviewAt(0.8F);
    Type("txtAspect", "0.");
    Design.AspectRatio = 0.9F;
    ReloadPage();
    Settle();
    ExpectAspect(0.9F, ".9", "90");
}

TEST_F(AspectTest, KeysStepInThePercentBoxAndStayThere) {
    OpenPreviewAt(0.8F);
    Box("txtAspectUpDown").setFocus();
    for (const char* percent : {"81", "82", "83"}) {
        QTest::keyClick(&Box("txtAspectUpDown"), Qt::Key_Up);
        Settle();
        EXPECT_EQ(TextOf("txtAspectUpDown"), percent);
        EXPECT_EQ(QApplication::focusWidget(), &Box("txtAspectUpDown"));
    }
    QTest::keyClick(&Box("txtAspectUpDown"), Qt::Key_Down);
    Settle();
    EXPECT_EQ(TextOf("txtAspectUpDown"), "82");
}

TEST_F(AspectTest, PictureFollowsTheAspect) {
    OpenPreviewAt(0.8F);
    const Calls before = Shown();
    Paste("txtAspect", "1");
    const Calls wide = Shown();
    EXPECT_NE(LinesOf(wide), LinesOf(before));
    EXPECT_EQ(std::count(wide.begin(), wide.end(), "Clear"), 1);
    Paste("txtAspectUpDown", "80");
    EXPECT_EQ(Shown(), before);
}

} // namespace
} // namespace vernacle::test
