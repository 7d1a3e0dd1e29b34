// The illustrated help, and the routines that open it.
#include "desktop/help/frmHelp.h"

#include "desktop/pages/frmGraphic.h"
#include "desktop/pages/frmScales.h"
#include "engine/illustrations/schematic.h"
#include "engine/illustrations/schematicmarks.h"
#include "support/formtest.h"

namespace vernacle::test {
namespace {

class HelpTest : public FormTest {
protected:
    static RecordingSurface Drawn(const QWidget& form) {
        return Recorded(*form.findChild<PictureBox*>(QStringLiteral("picSchematic")));
    }

    // The caption of the help that comes up.
    std::string CaptionFrom(const std::function<void()>& open) {
        std::string caption = "no help";
        Answer([&](QWidget& form) {
            EXPECT_EQ(form.objectName(), QLatin1String("frmHelp"));
            EXPECT_TRUE(form.isModal());
            caption = Drawn(form).texts.back();
            Click(On<QPushButton>(form, "cmdReturn"));
            EXPECT_FALSE(form.isVisible());
        });
        open();
        EXPECT_TRUE(AllAnswered());
        return caption;
    }
};

TEST_F(HelpTest, EveryTopicShowsItsCaptionAndMark) {
    OpenPage("frmPlate");
    int marked = 0;
    for (int topic = 0; topic <= 50; ++topic) {
        Design.HelpTopic = static_cast<std::int16_t>(topic);
        const std::unique_ptr<QWidget> form = MakeForm("frmHelp");
        const RecordingSurface drawn = Drawn(*form);
        std::size_t red = 0;
        for (const std::string& line : drawn.CallsOf("Line")) {
            red += line.ends_with(" ff") ? 1U : 0U;
        }
        if (const char* caption = TopicCaption(topic)) {
            EXPECT_EQ(drawn.texts.back(), caption);
            EXPECT_GE(red, 9U) << topic;
            EXPECT_EQ(drawn.CallsOf("Dot").size(), 1U);
            EXPECT_TRUE(drawn.CallsOf("Dot").at(0).ends_with(" e0ecf0"));
            ++marked;
        } else {
            EXPECT_EQ(red, 0U) << topic;
            EXPECT_TRUE(drawn.CallsOf("Dot").empty());
        }
    }
    EXPECT_EQ(marked, 27);
}

TEST_F(HelpTest, PlateIsWhiteWithAGreyBorderAndABluePointer) {
    Design.HelpTopic = 0;
    const std::unique_ptr<QWidget> form = MakeForm("frmHelp");
    const RecordingSurface drawn = Drawn(*form);
    const Strings boxes = drawn.CallsOf("FilledBox");
    ASSERT_GE(boxes.size(), 2U);
    EXPECT_TRUE(boxes[0].ends_with(" c0ccd0"));
    EXPECT_TRUE(boxes[1].ends_with(" ffffff"));
    std::size_t blue = 0;
    for (const std::string& line : drawn.CallsOf("Line")) {
        blue += line.ends_with(" ff0000") ? 1U : 0U;
    }
    EXPECT_EQ(blue, 1U);
}

// On a page of their own the dimension lines end in heads; no stem reaches beyond them.
TEST_F(HelpTest, DimensionLinesEndInArrowheads) {
    RecordingSurface help;
    DrawSchematic(help, 1, kHelpPageLook);
    RecordingSurface plate;
    DrawSchematic(plate, 1, kPlatePageLook);
    const auto longest = [](const RecordingSurface& surface, double length) {
        std::size_t count = 0;
        for (const std::string& line : surface.CallsOf("Line")) {
            std::istringstream words(line.substr(5));
            words.imbue(std::locale::classic());
            double x1 = 0;
            double y1 = 0;
            double x2 = 0;
            double y2 = 0;
            words >> x1 >> y1 >> x2 >> y2;
            const bool level = y1 == y2 && line.ends_with(" ff");
            count += level && std::abs(std::abs(x2 - x1) - length) < 0.5 ? 1U : 0U;
        }
        return count;
    };
    EXPECT_EQ(longest(plate, kArrowStem), 2U);
    EXPECT_EQ(longest(help, kArrowStem), 0U);
    EXPECT_EQ(longest(help, kArrowBack), 2U);
}

TEST_F(HelpTest, SixRoutinesOpenTheirTopics) {
    OpenPage("frmScales");
    auto& scales = dynamic_cast<frmScales&>(Page());
    EXPECT_EQ(CaptionFrom([&] { scales.cmdBottomToTitleClicked(); }), "Bottom to scale title - mm");
    EXPECT_EQ(Design.HelpTopic, 23);
    EXPECT_EQ(CaptionFrom([&] { scales.cmdBottomToScaleCeilingClicked(); }),
              "Bottom to ceiling - mm");
    EXPECT_EQ(Design.HelpTopic, 24);
    OpenPage("frmGraphic");
    auto& graphic = dynamic_cast<frmGraphic&>(Page());
    EXPECT_EQ(CaptionFrom([&] { graphic.cmdLeftToImageClicked(); }), "Left to graphic - mm");
    EXPECT_EQ(CaptionFrom([&] { graphic.cmdBottomToImageClicked(); }),
              "Bottom to graphic top - mm");
    EXPECT_EQ(CaptionFrom([&] { graphic.cmdGraphicWidthClicked(); }), "Graphic width - mm");
    EXPECT_EQ(CaptionFrom([&] { graphic.cmdGraphicHeightClicked(); }), "Graphic height - mm");
    EXPECT_EQ(Design.HelpTopic, 33);
}

} // namespace
} // namespace vernacle::test
