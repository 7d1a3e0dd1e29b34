// The overlays of the preview page: their flags, and what is on the picture.
#include <QAccessible>

#include "engine/render/overlays.h"
#include "previewtest.h"

namespace vernacle::test {
namespace {

struct Overlay {
    const char* button;
    std::int16_t& (*flag)();
    void (*draw)(DrawingSurface& surface, const PlateFrame& frame);
};

const Overlay kGrid = {"cmdGrid", []() -> std::int16_t& { return Drawing.GridShown; }, DrawGrid};
const Overlay kPointer = {
    "cmdPointer", []() -> std::int16_t& { return Drawing.PointerShown; },
    [](DrawingSurface& surface, const PlateFrame& frame) { DrawPointer(surface, frame, Drawing); }};
const Overlay kCircle = {"cmdCircle", []() -> std::int16_t& { return Design.PlateOutlineCircular; },
                         [](DrawingSurface& surface, const PlateFrame& frame) {
                             DrawOutline(surface, frame, OutlineStart::Moved, 0xFF0000);
                         }};
const Overlay kOverlays[] = {kGrid, kPointer, kCircle};

class OverlayTest : public PreviewTest {
protected:
    void Press(const Overlay& overlay) {
        Click(overlay.button);
        Settle();
    }

    // To the eye and to a screen reader.
    void ExpectPressed(const Overlay& overlay, bool pressed) const {
        auto& button = Find<QPushButton>(overlay.button);
        EXPECT_EQ(button.isChecked(), pressed);
        const QAccessible::State state = QAccessible::queryAccessibleInterface(&button)->state();
        EXPECT_TRUE(state.checkable);
        EXPECT_EQ(state.checked, pressed);
    }

    static Calls CallsOf(const Overlay& overlay) {
        RecordingSurface surface;
        overlay.draw(surface, FrameOf(Design, PreviewTraits()));
        return surface.calls;
    }

    static Calls Joined(Calls calls, const Calls& more) {
        calls.insert(calls.end(), more.begin(), more.end());
        return calls;
    }
};

class EachOverlayTest : public OverlayTest, public ::testing::WithParamInterface<Overlay> {
protected:
    const Overlay& overlay = GetParam();
};

INSTANTIATE_TEST_SUITE_P(Overlays, EachOverlayTest, ::testing::ValuesIn(kOverlays),
                         [](const auto& row) { return std::string(row.param.button); });

TEST_P(EachOverlayTest, FirstPressDrawsOverThePictureAsItStands) {
    const QWidget* page = &OpenPreviewAt(0.8F);
    const Calls plain = Shown();
    Press(overlay);
    EXPECT_EQ(overlay.flag(), 1);
    EXPECT_EQ(Shown(), Joined(plain, CallsOf(overlay)));
    EXPECT_EQ(&Page(), page) << "not reloaded";
}

TEST_P(EachOverlayTest, SecondPressLeavesNoneOfIt) {
    const QWidget* page = &OpenPreviewAt(0.8F);
    const Calls plain = Shown();
    Press(overlay);
    Press(overlay);
    EXPECT_EQ(overlay.flag(), 0);
    EXPECT_EQ(Shown(), plain);
    EXPECT_EQ(&Page(), page) << "only drawn anew";
    EXPECT_EQ(Page().focusWidget()->objectName().toStdString(), overlay.button);
}

TEST_F(OverlayTest, OverlaysStandAboveEachOther) {
    OpenPreviewAt(0.8F);
    Calls expected = Shown();
    for (const Overlay& overlay : kOverlays) {
        Press(overlay);
        expected = Joined(expected, CallsOf(overlay));
        EXPECT_EQ(Shown(), expected);
    }
}

// The reload takes the others with it, but leaves their flags, so that their next press shows
// nothing.
TEST_F(OverlayTest, OthersGoWithOneThatIsTurnedOff) {
    for (const Overlay& off : kOverlays) {
        for (const Overlay& other : kOverlays) {
            if (other.button == off.button) {
                continue;
            }
            SCOPED_TRACE(std::string(off.button) + " takes " + other.button);
            OpenPreviewAt(0.8F);
            const Calls plain = Shown();
            Press(other);
            Press(off);
            Press(off);
            EXPECT_EQ(Shown(), plain);
            EXPECT_EQ(off.flag(), 0);
            EXPECT_EQ(other.flag(), 1);
            Press(other);
            EXPECT_EQ(other.flag(), 0);
            EXPECT_EQ(Shown(), plain);
            Press(other);
            EXPECT_EQ(Shown(), Joined(plain, CallsOf(other)));
            Press(other);
        }
    }
}

TEST_P(EachOverlayTest, FlagsOutliveThePageButNothingIsDrawnAtTheLoad) {
    OpenPreviewAt(0.8F);
    const Calls plain = Shown();
    Press(overlay);
    ClickAndSettle("Plate");
    ClickAndSettle("Preview");
    EXPECT_EQ(overlay.flag(), 1);
    EXPECT_EQ(Shown(), plain);
    Press(overlay);
    EXPECT_EQ(overlay.flag(), 0);
    EXPECT_EQ(Shown(), plain);
}

TEST_P(EachOverlayTest, NewAspectDrawsWithoutThem) {
    OpenPreviewAt(0.8F);
    Press(overlay);
    Paste("txtAspect", "0.9");
    ExpectPlainPicture();
    EXPECT_EQ(overlay.flag(), 1);
    overlay.flag() = 0;
    Press(overlay);
    EXPECT_EQ(LinesOf(Shown()).size(), [&] {
        RecordingSurface surface = PlainPicture();
        overlay.draw(surface, FrameOf(Design, PreviewTraits()));
        return LinesOf(surface.calls).size();
    }()) << "at the new aspect";
}

// The flag decides, not whether the overlay is drawn.
TEST_P(EachOverlayTest, ButtonsLookPressedWhileTheirFlagIsSet) {
    OpenPreviewAt(0.8F);
    ExpectPressed(overlay, false);
    const QImage released = Find(overlay.button).grab().toImage();
    Press(overlay);
    ExpectPressed(overlay, true);
    EXPECT_NE(Find(overlay.button).grab().toImage(), released);
    StepUp("UpDown1"); // takes the drawing away
    ExpectPressed(overlay, true);
    Paste("txtAspect", "0.9");
    ExpectPressed(overlay, true);
    OpenPage("frmPlate");
    OpenPreview();
    ExpectPressed(overlay, true);
    for (const Overlay& other : kOverlays) {
        ExpectPressed(other, other.button == overlay.button);
    }
    QTest::keyClick(&Find(overlay.button), Qt::Key_Space);
    ExpectPressed(overlay, false);
    overlay.flag() = 5;
    OpenPreview();
    ExpectPressed(overlay, true);
    QTest::keyClick(&Find(overlay.button), Qt::Key_Return);
    EXPECT_EQ(overlay.flag(), 0);
    ExpectPressed(overlay, false);
    EXPECT_FALSE(Find<QPushButton>("cmdHPGL").isCheckable());
}

TEST_P(EachOverlayTest, FlagBeyondOneGoesToZero) {
    OpenPreviewAt(0.8F);
    const Calls plain = Shown();
    overlay.flag() = 5;
    Press(overlay);
    EXPECT_EQ(overlay.flag(), 0);
    EXPECT_EQ(Shown(), plain);
}

TEST_F(OverlayTest, PointerOfAPlateWithoutTics) {
    Design.PrintTicsAndArcs[1] = std::int16_t{1}; // no tics are drawn
    OpenPreviewAt(1);
    Press(kPointer);
    const Calls calls = Shown();
    const auto toNowhere = std::find_if(calls.begin(), calls.end(), [](const std::string& call) {
        return call.starts_with("Line 0 0 ") && call.ends_with(" ff00");
    });
    EXPECT_NE(toNowhere, calls.end()) << "from the values left at 0";
}

TEST_F(OverlayTest, PointersLengthIsWritten) {
    OpenPreviewAt(1);
    Press(kPointer);
    const std::string note = TextsOf("picPlate").back();
    EXPECT_TRUE(note.starts_with("Pointer length: ") && note.ends_with("mm")) << note;
    const double length =
        QString::fromStdString(note).section(QLatin1Char(' '), 2).chopped(2).toDouble();
    EXPECT_NEAR(length, double{Drawing.PointerLength}, 0.051);
    EXPECT_GT(length, 20); // the ceiling stands 25 mm above the bearing
}

// The toggle decides whether the design prints as a circular plate.
TEST_F(OverlayTest, CircleIsThePlatesOutline) {
    OpenPreviewAt(1);
    Press(kCircle);
    EXPECT_EQ(Design.PlateOutlineCircular, 1);
    Press(kCircle);
    EXPECT_EQ(Design.PlateOutlineCircular, 0);
    Design.PlateOutlineCircular = 1; // by the plate page
    OpenPreview();
    Press(kCircle);
    EXPECT_EQ(Design.PlateOutlineCircular, 0);
    ExpectPlainPicture();
}

} // namespace
} // namespace vernacle::test
