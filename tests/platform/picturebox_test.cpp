// A picture on a page: what it shows, at which size and shape, and that it keeps it.
#include "platform/picturebox.h"

#include <QPixmap>

#include "platform/inkicon.h"
#include "support/formtest.h"

namespace vernacle::test {
namespace {

class PictureBoxTest : public FormTest {
protected:
    // The box around all that is not white.
    static QRect Painted(QWidget& picture) {
        const QImage image = picture.grab().toImage();
        QRect painted;
        for (int y = 0; y < image.height(); ++y) {
            for (int x = 0; x < image.width(); ++x) {
                if (image.pixelColor(x, y) != QColor(Qt::white)) {
                    painted |= QRect(x, y, 1, 1);
                }
            }
        }
        return painted;
    }
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
