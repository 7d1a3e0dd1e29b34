// A drawing that is kept makes the same calls again, and measures as the whole screen does.
#include "surfaces/drawingrecord.h"

#include <gtest/gtest.h>

#include "engine/base/runtimeerror.h"
#include "engine/core/design.h"
#include "engine/render/drawing.h"
#include "engine/scale/scale.h"
#include "support/enginetest.h"
#include "support/recordingsurface.h"
#include "surfaces/surfacetest.h"

namespace vernacle::test {
namespace {

class DrawingRecordTest : public SurfaceTest {
protected:
    DrawingRecord record{DeviceMap::OfScreen(1920, 1080), [this] { ++changes; }};
    int changes = 0;

    Texts Replayed() const {
        RecordingSurface surface;
        record.Replay(surface);
        return surface.calls;
    }
};

void MakeEveryCall(DrawingSurface& surface) {
    surface.Clear();
    surface.SetLineWidth(3);
    surface.SetForeColor(0x112233);
    surface.Line(1, 2, 3, 4, 0xFF0000);
    surface.Box(5, 6, 7, 8, 0x00FF00);
    surface.FilledBox(9, 10, 11, 12, 0x0000FF);
    surface.Circle(13, 14, 15, 0x123456);
    surface.SetCurrentX(16);
    surface.SetCurrentY(17);
    surface.SetFontName("Arial");
    surface.SetFontSize(9);
    surface.PrintText("thirty \xC3\xA9");
    surface.Dot(18, 19, 0x654321);
    surface.BeginFont(20, 21, 22, "Courier");
    surface.PrintText("turned");
    surface.EndFont();
}

TEST_F(DrawingRecordTest, MakesEveryCallAgain) {
    RecordingSurface direct;
    MakeEveryCall(direct);
    MakeEveryCall(record);
    EXPECT_EQ(Replayed(), direct.calls);
    EXPECT_EQ(Replayed(), direct.calls) << "and once more";
    EXPECT_EQ(changes, 16);
}

TEST_F(DrawingRecordTest, ClearForgetsWhatWasBefore) {
    MakeEveryCall(record);
    record.Clear();
    EXPECT_EQ(Replayed(), Texts{"Clear"});
}

TEST_F(DrawingRecordTest, KnowsTheCurrentPosition) {
    record.Line(1, 2, 3, 4, 0);
    EXPECT_EQ(record.GetCurrentX(), 3);
    EXPECT_EQ(record.GetCurrentY(), 4);
    record.Dot(5, 6, 0);
    EXPECT_EQ(record.GetCurrentX(), 5);
    EXPECT_EQ(record.GetCurrentY(), 6);
    record.SetCurrentX(7);
    record.SetCurrentY(8);
    EXPECT_EQ(record.GetCurrentX(), 7);
    EXPECT_EQ(record.GetCurrentY(), 8);
}

TEST_F(DrawingRecordTest, MeasuresAsTheScreenDoes) {
    QPainter idle;
    PainterSurface screen(idle, DeviceMap::OfScreen(1920, 1080));
    for (DrawingSurface* surface :
         {static_cast<DrawingSurface*>(&screen), static_cast<DrawingSurface*>(&record)}) {
        surface->SetFontName("Arial");
        surface->SetFontSize(14);
    }
    EXPECT_GT(record.TextWidth("AMPERES"), 0);
    EXPECT_EQ(record.TextWidth("AMPERES"), screen.TextWidth("AMPERES"));
    EXPECT_EQ(record.TextHeight("AMPERES"), screen.TextHeight("AMPERES"));
}

TEST_F(DrawingRecordTest, APictureThatDoesNotLoadFailsAtOnce) {
    EXPECT_THROW(record.PaintPicture(Path("missing.bmp"), 0, 0, 1, 1), RunTimeError);
    EXPECT_EQ(Replayed().size(), 0U);
}

TEST_F(DrawingRecordTest, APictureThatHasGoneSinceIsLeftOut) {
    record.PaintPicture(WriteFile("picture.bmp", PictureBytes("BMP")), 0, 0, 1, 1);
    record.Line(1, 2, 3, 4, 0);
    std::filesystem::remove(Path("picture.bmp"));
    QImage image(120, 90, QImage::Format_RGB32);
    QPainter painter(&image);
    PainterSurface surface(painter, DeviceMap::OfScreen(120, 90));
    EXPECT_NO_THROW(record.Replay(surface));
    EXPECT_EQ(Replayed().size(), 2U);
}

TEST_F(DrawingRecordTest, ARecordedDesignPaintsTheSamePicture) {
    SetVersionAndScreenScale(Design);
    SetOpeningValues(Design);
    ResetDesign(Design);
    ComputeTicDeflections(Design);
    ComputeTicLabels(Design);
    constexpr QSize kWindow(1600, 900);
    const PageCopies sizes{Design.FontSize, Design.LabelSpacing};
    DrawingRecord kept(DeviceMap::OfScreen(1600, 900), [] {});
    DrawPage(Design, kept, ScalesTraits(), sizes, vernacle::Drawing);
    const QImage replayed = Draw(kWindow, [&](DrawingSurface& surface) { kept.Replay(surface); });
    const QImage direct = Draw(kWindow, [&](DrawingSurface& surface) {
        DrawPage(Design, surface, ScalesTraits(), sizes, vernacle::Drawing);
    });
    EXPECT_EQ(replayed, direct);
}

} // namespace
} // namespace vernacle::test
