// A picture on a page: what it shows, at which size and shape, and that it keeps it.
#include "desktop/kit/picturebox.h"

#include <QPixmap>

#include "desktop/kit/inkicon.h"
#include "engine/base/hostservices.h"
#include "engine/illustrations/schematic.h"
#include "engine/render/drawing.h"
#include "support/formtest.h"
#include "support/pixels.h"

namespace vernacle::test {
namespace {

class PictureBoxTest : public FormTest {
protected:
    // The box around all that is not white.
    static QRect Painted(QWidget& picture) { return InkOf(picture.grab().toImage(), 255); }
};

TEST_F(PictureBoxTest, KeepsTheShapeOfTheScreensUnits) {
    // On 1920 x 1080 a unit is .16 pixels wide and .12 high; the area is scaled to fit.
    PictureBox picture("pic", {1000, 1000, 3000, 4000}, UnitShape::OfScreen);
    picture.resize(960, 480);
    picture.Surface().FilledBox(1000, 1000, 4000, 5000, 0x0000FF);
    const QRect painted = Painted(picture);
    EXPECT_NEAR(painted.height(), 480, 1);
    EXPECT_NEAR(painted.width(), 480, 1); // 3000 x .16 = 4000 x .12
    EXPECT_NEAR(painted.center().x(), 480, 1);
}

TEST_F(PictureBoxTest, SquareUnitsAreSquare) {
    PictureBox picture("pic", {0, 0, 4000, 4000}, UnitShape::Square);
    picture.resize(900, 400);
    picture.Surface().FilledBox(1000, 1000, 3000, 3000, 0x0000FF);
    const QRect painted = Painted(picture);
    EXPECT_NEAR(painted.width(), 200, 1);
    EXPECT_NEAR(painted.height(), 200, 1);
}

TEST_F(PictureBoxTest, SquareUnitsMeasureTextsByTheirOwnShape) {
    PictureBox wide("wide", {0, 0, 4000, 4000}, UnitShape::OfScreen);
    PictureBox square("square", {0, 0, 4000, 4000}, UnitShape::Square);
    wide.Surface().SetFontSize(10);
    square.Surface().SetFontSize(10);
    EXPECT_NEAR(double{square.Surface().TextWidth("VOLTS")},
                double{wide.Surface().TextWidth("VOLTS")} * 4 / 3, 0.5);
    EXPECT_EQ(square.Surface().TextHeight("VOLTS"), wide.Surface().TextHeight("VOLTS"));
}

// A plate with a label over the tic at its middle, drawn as on a screen of that size.
class LargeScreenTest : public PictureBoxTest {
protected:
    static constexpr LogicalArea kArea = {2300, 700, 7400, 7900};

    static void UseScreen(int width, int height) {
        Host.screenSize = [=] {
            return ScreenSize{static_cast<float>(width * 15), static_cast<float>(height * 15)};
        };
        SetVersionAndScreenScale(Design);
    }

    static QImage DrawnPlate(const QSize& size) {
        Design.LabelsEveryHowMany[1] = 5;
        PictureBox picture("pic", kArea, UnitShape::OfScreen);
        picture.resize(size);
        DrawPage(Design, picture.Surface(), TextTraits(), {Design.FontSize, Design.LabelSpacing},
                 Drawing);
        return picture.grab().toImage();
    }
};

TEST_F(LargeScreenTest, ShowTheSamePictureAsTheWidestThatIsDrawnFor) {
    const struct {
        QSize real;
        QSize drawn;
    } screens[] = {
        {{2560, 1440}, {1920, 1080}}, {{2560, 1080}, {1920, 810}}, {{3840, 2160}, {1920, 1080}}};
    for (const auto& [real, drawn] : screens) {
        UseScreen(real.width(), real.height());
        const QImage shown = DrawnPlate({900, 700});
        UseScreen(drawn.width(), drawn.height());
        EXPECT_TRUE(shown == DrawnPlate({900, 700})) << real.width();
    }
}

// Its lines are as wide as they are long, and its letters are not those of a small picture, blown
// up.
TEST_F(LargeScreenTest, AreDrawnInTheirOwnPixels) {
    UseScreen(3840, 2160);
    const QImage small = DrawnPlate({1200, 900});
    const QImage large = DrawnPlate({2400, 1800});
    const auto inked = [](const QImage& image) { // with the share that smoothing leaves grey
        double ink = 0;
        for (int y = 0; y < image.height(); ++y) {
            ink += InkAcross(image, y);
        }
        return ink;
    };
    EXPECT_NEAR(inked(large) / inked(small), 4, 0.2) << "all of it is magnified";
    const QImage blown =
        small.scaled(large.size(), Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
    const auto greys = [](const QImage& image) { return CountPixels(image, 61, 194); };
    EXPECT_LT(greys(large), greys(blown) / 2);
}

TEST_F(LargeScreenTest, SquarePicturesAreTheSameOnEveryScreen) {
    const auto drawn = [](int width, int height) {
        UseScreen(width, height);
        PictureBox picture("pic", SchematicArea(), UnitShape::Square);
        picture.resize(700, 600);
        DrawSchematic(picture.Surface(), 13, kPlatePageLook);
        return picture.grab().toImage();
    };
    const QImage usual = drawn(1920, 1080);
    for (const QSize& screen : {QSize(1024, 768), {2560, 1440}, {2560, 1080}, {3840, 2160}}) {
        EXPECT_TRUE(drawn(screen.width(), screen.height()) == usual) << screen.width();
    }
}

TEST_F(PictureBoxTest, RedrawsWhatItKeepsAtEverySize) {
    PictureBox picture("pic", {0, 0, 4000, 4000}, UnitShape::Square);
    picture.Surface().FilledBox(1000, 1000, 3000, 3000, 0x0000FF);
    for (const int side : {300, 600, 301, 1200}) {
        picture.resize(side, side);
        EXPECT_NEAR(Painted(picture).width(), side / 2, 1) << side;
    }
}

TEST_F(PictureBoxTest, IsWhiteBeforeAnythingIsDrawnAndAfterAClear) {
    PictureBox picture("pic", {0, 0, 4000, 4000}, UnitShape::Square);
    picture.resize(300, 300);
    EXPECT_TRUE(Painted(picture).isNull());
    picture.Surface().FilledBox(1000, 1000, 3000, 3000, 0x0000FF);
    picture.Surface().Clear();
    EXPECT_TRUE(Painted(picture).isNull());
}

TEST_F(PictureBoxTest, IconsWearTheDesktopsTextColour) {
    const QPalette before = QApplication::palette();
    for (const QColor& ink : {QColor(0x20, 0x40, 0x60), QColor(0xF0, 0xF0, 0xF0)}) {
        QPalette colours = before;
        colours.setColor(QPalette::ButtonText, ink);
        QApplication::setPalette(colours);
        const QImage icon = InkIcon("open").pixmap(QSize(96, 96)).toImage();
        int inked = 0;
        for (int y = 0; y < icon.height(); ++y) {
            for (int x = 0; x < icon.width(); ++x) {
                inked += icon.pixelColor(x, y) == ink ? 1 : 0;
            }
        }
        EXPECT_GT(inked, 100) << ink.name().toStdString();
    }
    QApplication::setPalette(before);
}

TEST_F(PictureBoxTest, AnIconThatIsNotThereIsEmpty) {
    EXPECT_TRUE(InkIcon("nothing").isNull());
}

} // namespace
} // namespace vernacle::test
