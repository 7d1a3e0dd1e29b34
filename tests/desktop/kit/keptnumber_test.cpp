// What a box shows of a number that is kept instead of the one that was typed.
#include "desktop/kit/field.h"

#include <QGridLayout>

#include "desktop/kit/updown.h"
#include "engine/core/service.h"
#include "onchange.h"
#include "support/formtest.h"

namespace vernacle::test {
namespace {

class KeptNumberTest : public FormTest {
protected:
    KeptNumberTest() { StoreService(Program::Workshop); }

    Field& Show(const FieldRow& row) {
        auto* field = new Field(row, window);
        field->AddTo(*grid, grid->rowCount());
        OnChange(*field->box, [field] { field->Take(field->row.place.In(Design)); });
        window.show();
        window.activateWindow();
        EXPECT_TRUE(QTest::qWaitForWindowActive(&window));
        field->box->setFocus();
        field->box->selectAll();
        return *field;
    }

    static FieldRow WidthRow() {
        return {.box = "txtWidth",
                .caption = "Width",
                .place = At<&DesignRecord::PlateWidth>,
                .limits = {20, 180},
                .unit = "mm",
                .arrows = {"UpDown1", {20, 180}}};
    }

    // The columns of the box, from its right end on, in which something is written.
    static int InkAtRightEnd(const EntryBox& box, int columns) {
        const QImage image = const_cast<EntryBox&>(box).grab().toImage();
        const QRgb paper = image.pixel(image.width() / 2, 4);
        int inked = 0;
        for (int x = image.width() - columns; x < image.width() - 3; ++x) {
            for (int y = 4; y < image.height() - 4; ++y) {
                if (image.pixel(x, y) != paper) {
                    ++inked;
                    break;
                }
            }
        }
        return inked;
    }

    QWidget window;
    QGridLayout* grid = new QGridLayout(&window);
};

TEST_F(KeptNumberTest, StandsInGreyAtTheRightEnd) {
    const EntryBox& box = *Show(WidthRow()).box;
    QTest::keyClicks(&const_cast<EntryBox&>(box), QStringLiteral("150"));
    EXPECT_EQ(box.Kept(), "");
    const int bare = InkAtRightEnd(box, 40);
    QTest::keyClicks(&const_cast<EntryBox&>(box), QStringLiteral("0"));
    EXPECT_EQ(box.Text() + ", " + box.Kept(), "1500, 180");
    EXPECT_GT(InkAtRightEnd(box, 40), bare + 8);
    EXPECT_GE(box.textMargins().right(), box.fontMetrics().horizontalAdvance(QStringLiteral("180")))
        << "what is typed keeps clear of it";
    EXPECT_EQ(box.accessibleDescription(), QLatin1String("20 to 180 mm, kept as 180"));
    QTest::keyClick(&const_cast<EntryBox&>(box), Qt::Key_Backspace);
    EXPECT_EQ(box.Kept(), "");
    EXPECT_EQ(InkAtRightEnd(box, 40), bare);
    EXPECT_EQ(box.textMargins().right(), 0);
    EXPECT_EQ(box.accessibleDescription(), QLatin1String("20 to 180 mm"));
}

TEST_F(KeptNumberTest, StaysBehindALeftBoxAndArrowsStartFromIt) {
    const Field& field = Show(WidthRow());
    QTest::keyClicks(field.box, QStringLiteral("1500"));
    QTest::keyClick(field.box, Qt::Key_Return);
    EXPECT_EQ(field.box->Text() + ", " + field.box->Kept(), "1500, 180");
    field.arrows->Down();
    EXPECT_EQ(field.box->Text() + ", " + field.box->Kept(), "179, ");
    EXPECT_EQ(Design.PlateWidth, 179);
}

// Also of a box that everyday is rewritten between two keys.
TEST_F(KeptNumberTest, ABoxThatShowsWhatItHoldsWaitsUntilItIsLeft) {
    for (const Showing showing : {Showing::Held, Showing::HeldAtOnce}) {
        FieldRow row = WidthRow();
        row.showing = showing;
        const Field& field = Show(row);
        QTest::keyClicks(field.box, QStringLiteral("1500"));
        EXPECT_EQ(field.box->Text() + ", " + field.box->Kept(), "1500, 180");
        QTest::keyClick(field.box, Qt::Key_Return);
        EXPECT_EQ(field.box->Text() + ", " + field.box->Kept(), "180, ");
    }
    StoreService(Program::Everyday);
    const Field& everyday = Show(WidthRow());
    QTest::keyClicks(everyday.box, QStringLiteral("1500"));
    EXPECT_EQ(everyday.box->Kept(), "");
}

TEST_F(KeptNumberTest, ANumberThatIsShownStaysToTheLastBit) {
    Design.PlateWidth = 33.3333359F;
    const Field& field = Show(WidthRow());
    field.Fill(&Design.PlateWidth);
    EXPECT_EQ(field.box->Text(), "33.33334");
    EXPECT_EQ(Design.PlateWidth, 33.3333359F);
    EXPECT_EQ(field.box->Kept(), "");
    field.box->Write("33.3333");
    EXPECT_EQ(Design.PlateWidth, 33.3333F);
}

TEST_F(KeptNumberTest, ATextTakesNoMoreThanItKeeps) {
    const Field& field = Show({.box = "txtName",
                               .caption = "Name",
                               .place = At<&DesignRecord::FontName>,
                               .reading = Reading::Text,
                               .longest = 3});
    QTest::keyClicks(field.box, QStringLiteral("abcd"));
    EXPECT_EQ(field.box->Text() + ", " + Design.FontName, "abc, abc");
    EXPECT_EQ(field.box->Kept(), "");
}

} // namespace
} // namespace vernacle::test
