// The small explanation forms: static pictures and texts, and a button that closes them.
#include <QScreen>

#include "engine/designfile/readwrite.h"
#include "engine/illustrations/samples.h"
#include "support/formtest.h"
#include "support/pixels.h"

namespace vernacle::test {
namespace {

struct Explained {
    const char* picture;
    Sample sample;
    const char* label;
    const char* text; // what it says, or a part of it
};

struct IllustrationRow {
    const char* form;
    const char* title;
    const char* button;
    const char* caption;
    std::vector<Explained> pictures;
};

const IllustrationRow kRows[] = {
    {"frmTicsHelp",
     "Vernacle - Tics Help",
     "cmdExit",
     "Return to the Design page",
     {{"Image1", Sample::LinearScale, "Label3", "An ordinary linear scale"},
      {"Image2", Sample::ExponentOne, "Label1",
       "A scale with its exponent set to 1; all ticmarks are used."},
      {"Image3", Sample::ExponentTwo, "Label2",
       "That scale with exponent set to 2, enlarged to show the crowded region at the left end"},
      {"Image4", Sample::SomeTicsRemoved, "Label4",
       "That scale with some ticmarks removed for a cleaner appearance"},
      {"Image5", Sample::LeftEndCleared, "Label5",
       "Now some ticmarks and a label have been deleted to clarify that left end."}}},
    {"frmExponent",
     "Vernacle - Exponent illustration",
     "cmdReturn",
     "Return",
     {{"Image1", Sample::Exponents, "Label1",
       R"(The linearity exponent bends a scale. With 1 its tics stand evenly; above 1 they crowd at )"
       R"(the left end and spread at the right, as on a meter whose pointer moves with the square of )"
       R"(the current; below 1 it is the other way round.)"}}},
    {"frmRotateIllustration",
     "Vernacle - Rotate illustration",
     "Command1",
     "Return",
     {{"Image1", Sample::RotatedBearing, "Label1",
       R"(This illustrates the result of setting the "Label Rotate" option to "Bearing".  The )"
       R"(ticmark labels rotate about the pointer bearing. This is best used with the old-style )"
       R"(arc which is obtained by using a value of zero for the "Actual/Virtual offset" entry.)"},
      {"Image2", Sample::RotatedHorizontal, "Label2",
       R"(This illustrates the result of setting the "Label Rotate" option to "Horizontal".  The )"
       R"(ticmark labels are then all horizontal.   This is best used with the modern flattened )"
       R"(arc design obtained by using a significant value for the "Actual/Virtual offset" )"
       R"(entry.)"}}},
    {"frmStyleHelp",
     "Vernacle - Style illustration",
     "cmdReturn",
     "Return",
     {{"Image1", Sample::StandardStyle, "Label1",
       R"(Clicking on the "Standard" button yields the standard style of scale.)"},
      {"Image2", Sample::QuadrantStyle, "Label2",
       R"(Clicking on the "Quadrant" button yields the quadrant style of scale.)"}}},
};

class IllustrationsTest : public FormTest, public ::testing::WithParamInterface<IllustrationRow> {
protected:
    IllustrationsTest() { OpenPage("frmPlate"); }

    const IllustrationRow& Row() const { return GetParam(); }

    // Opens the form above the page, looks at it, and closes it by its button.
    void Show(const std::function<void(QWidget& form)>& look) {
        Answer([&](QWidget& form) {
            look(form);
            Click(On<QWidget>(form, Row().button));
        });
        ShowModal(Row().form);
        EXPECT_TRUE(AllAnswered());
    }

    static Strings DrawnSample(Sample sample) {
        PictureBox picture("expected", SampleArea(sample), UnitShape::Square);
        DrawSample(picture.Surface(), sample);
        return Recorded(picture).calls;
    }

    static std::string AllTexts(const QWidget& form) {
        std::string all;
        for (const auto* label : form.findChildren<QLabel*>()) {
            all += label->text().toStdString() + "\n";
        }
        return all;
    }
};

TEST_P(IllustrationsTest, TitleNameAndButtonAreAsTold) {
    Show([this](QWidget& form) {
        EXPECT_EQ(form.objectName(), QLatin1String(Row().form));
        EXPECT_EQ(form.windowTitle(), QLatin1String(Row().title));
        EXPECT_TRUE(form.isModal());
        EXPECT_EQ(On<QPushButton>(form, Row().button).text(), QLatin1String(Row().caption));
        EXPECT_EQ(form.findChildren<QPushButton*>().size(), 1) << "nothing but to return";
        EXPECT_EQ(form.findChildren<PictureBox*>().size(), std::ssize(Row().pictures));
    });
}

TEST_P(IllustrationsTest, PicturesStandAboveTheirTexts) {
    Show([this](QWidget& form) {
        const QWidget* before = nullptr;
        for (const Explained& row : Row().pictures) {
            SCOPED_TRACE(row.picture);
            const auto& picture = On<PictureBox>(form, row.picture);
            const auto& label = On<QLabel>(form, row.label);
            EXPECT_EQ(Recorded(picture).calls, DrawnSample(row.sample));
            EXPECT_FALSE(label.text().isEmpty());
            EXPECT_TRUE(*row.text == '\0' || label.text() == QLatin1String(row.text))
                << label.text().toStdString();
            EXPECT_EQ(picture.accessibleName(), label.text());
            EXPECT_LE(picture.geometry().bottom(), label.geometry().top());
            EXPECT_EQ(picture.x(), label.x());
            const bool follows = !before || picture.y() > before->y() ||
                                 (picture.y() == before->y() && picture.x() > before->x());
            EXPECT_TRUE(follows) << "the story reads from the left and from the top";
            before = &picture;
        }
    });
}

TEST_P(IllustrationsTest, TextsAreReadWholeAtAnyFontSize) {
    const QFont usual = QApplication::font();
    for (const double points : {9., 14.}) {
        SCOPED_TRACE(points);
        QFont font = usual;
        font.setPointSizeF(points);
        QApplication::setFont(font);
        Show([](QWidget& form) {
            Settle();
            EXPECT_EQ(form.size().boundedTo(form.screen()->size()), form.size());
            for (const auto* label : form.findChildren<QLabel*>()) {
                EXPECT_GE(label->height(), label->heightForWidth(label->width()))
                    << label->objectName().toStdString();
                EXPECT_TRUE(form.rect().contains(label->geometry()));
            }
        });
    }
    QApplication::setFont(usual);
}

TEST_P(IllustrationsTest, PicturesShowInk) {
    Show([this](QWidget& form) {
        for (const Explained& row : Row().pictures) {
            const QImage image = On<PictureBox>(form, row.picture).grab().toImage();
            EXPECT_GT(CountPixels(image, 0, 99), 200) << row.picture;
        }
    });
}

TEST_P(IllustrationsTest, DesignIsUntouched) {
    Design.PlateWidth = 123;
    Design.NumberOfScales = 3;
    Design.ScaleTitle[1] = "Mine";
    Design.ScreenScaleX = 7;
    Design.HelpTopic = 12;
    Design.LinearityExponent[1] = 3;
    SaveDesign(Design, Path("before.VRN"));
    said.clear();
    Show([](QWidget&) {});
    EXPECT_TRUE(said.empty());
    SaveDesign(Design, Path("after.VRN"));
    EXPECT_EQ(ReadFile("after.VRN"), ReadFile("before.VRN"));
    EXPECT_EQ(Design.ScreenScaleX, 7);
    EXPECT_EQ(Design.HelpTopic, 12);
    EXPECT_EQ(PageName(), "frmPlate");
}

TEST_P(IllustrationsTest, CloseBoxEscapeAndEnterCloseItToo) {
    const std::function<void(QWidget&)> ways[] = {
        [](QWidget& form) { CloseByUser(form); },
        [](QWidget& form) { QTest::keyClick(&form, Qt::Key_Escape); },
        [](QWidget& form) { QTest::keyClick(&form, Qt::Key_Return); },
    };
    for (const auto& way : ways) {
        Answer(way);
        ShowModal(Row().form);
        EXPECT_TRUE(AllAnswered());
    }
    EXPECT_FALSE(TakeProcessEnd());
    EXPECT_FALSE(Exists("LASTSESSION.VRN"));
    EXPECT_EQ(PageName(), "frmPlate");
}

INSTANTIATE_TEST_SUITE_P(Forms, IllustrationsTest, ::testing::ValuesIn(kRows),
                         [](const auto& row) { return std::string(row.param.form); });

class StyleHelpTest : public IllustrationsTest {};

TEST_P(StyleHelpTest, NoteTellsHowLabelsHolesAndMeasuresStand) {
    Show([](QWidget& form) {
        const std::string texts = AllTexts(form);
        for (const char* told :
             {"horizontal positioning of the scale labels is determined by the "
              "program",
              "vertical positioning is adjustable through \"Bottom to title\"",
              "mounting holes are not shown for the Quadrant style",
              "\"Pointer deflection\" should be set to 90", "\"Actual/Virtual offset\" to 0"}) {
            EXPECT_NE(texts.find(told), std::string::npos) << told;
        }
    });
}

INSTANTIATE_TEST_SUITE_P(Forms, StyleHelpTest, ::testing::Values(kRows[3]),
                         [](const auto& row) { return std::string(row.param.form); });

} // namespace
} // namespace vernacle::test
