// The field of a row: its widgets and their names, and what it takes, keeps and shows.
#include "desktop/kit/field.h"

#include <QGridLayout>

#include "onchange.h"
#include "support/formtest.h"

namespace vernacle::test {
namespace {

using D = DesignRecord;

class FieldTest : public FormTest {
protected:
    Field& Add(const FieldRow& row) {
        auto* field = new Field(row, page);
        field->AddTo(*grid, grid->rowCount());
        fields.push_back(field);
        return *field;
    }

    QWidget page;
    QGridLayout* grid = new QGridLayout(&page);
    std::vector<Field*> fields;
};

TEST_F(FieldTest, NamesItsWidgetsAfterTheBox) {
    const Field& field = Add({.box = "txtWidth",
                              .caption = "Width",
                              .limits = {1, 5},
                              .unit = "mm",
                              .arrows = {"UpDown7", {0, 9}, "txtWidthUpDown"},
                              .topic = 4,
                              .topicTip = "Show it",
                              .text = "3"});
    EXPECT_EQ(field.label, &On<QLabel>(page, "lblWidth"));
    EXPECT_EQ(field.label->text(), QLatin1String("Width"));
    EXPECT_EQ(field.label->buddy(), field.box);
    EXPECT_EQ(field.box, &On<EntryBox>(page, "txtWidth"));
    EXPECT_EQ(field.box->accessibleName(), QLatin1String("Width"));
    EXPECT_EQ(field.box->Text(), "3");
    EXPECT_EQ(field.arrows, &On<UpDown>(page, "UpDown7"));
    EXPECT_EQ(field.partner, &On<EntryBox>(page, "txtWidthUpDown"));
    EXPECT_TRUE(field.partner->isHidden());
    EXPECT_EQ(field.help, &On<QPushButton>(page, "cmdWidth"));
    EXPECT_EQ(field.help->toolTip(), QLatin1String("Show it"));
}

TEST_F(FieldTest, HasNoMoreThanItsRowSays) {
    const Field& field = Add({.box = "txtWidth", .caption = "Width", .label = "Label5"});
    EXPECT_EQ(field.label, &On<QLabel>(page, "Label5"));
    EXPECT_EQ(field.arrows, nullptr);
    EXPECT_EQ(field.partner, nullptr);
    EXPECT_EQ(field.help, nullptr);
    EXPECT_EQ(field.box->toolTip(), QString());
}

struct FieldRangeRow {
    FieldRow row;
    const char* tip;
};

TEST_F(FieldTest, TellsTheLimitsOrTheRangeOfItsArrows) {
    const FieldRangeRow rows[] = {
        {{.box = "txtA", .limits = {1, 5}, .unit = "mm", .arrows = {"UpDown1", {0, 9}}},
         "1 to 5 mm"},
        {{.box = "txtB", .unit = "mm", .arrows = {"UpDown2", {0, 9}}}, "0 to 9 mm by the arrows"},
        {{.box = "txtC", .arrows = {"UpDown3", {0, 90}, "txtC10", 0.1}}, "0 to 9 by the arrows"},
    };
    for (const FieldRangeRow& row : rows) {
        EXPECT_EQ(Add(row.row).box->toolTip(), QLatin1String(row.tip));
    }
}

// With 7 before.
struct TakenRow {
    FieldRow row;
    const char* typed;
    float kept;
    const char* shown; // as the box is left
};

constexpr EntryLimits kOneToFifteen{1, 15};

TEST_F(FieldTest, TakesWhatIsTypedAsItsRowSays) {
    const TakenRow rows[] = {
        {{.limits = kOneToFifteen}, "12,5", 12.5F, "12,5"},
        {{.limits = kOneToFifteen}, "20", 15, "20"},
        {{.limits = kOneToFifteen}, "", 1, ""},
        {{.limits = kOneToFifteen}, "12345678901", 7, "12345678901"}, // no entry
        {{.limits = kOneToFifteen, .reading = Reading::Plain}, "3k", 3, "3k"},
        {{.limits = kOneToFifteen, .reading = Reading::Plain}, "12345678901", 15, "12345678901"},
        {{.limits = kOneToFifteen, .showing = Showing::Held}, "20", 15, "15"},
        {{.limits = kOneToFifteen, .showing = Showing::Held}, "12,5", 12.5F, "12,5"},
        {{.limits = kOneToFifteen, .holding = Holding::ByPage}, "20", 20, "20"},
        {{}, "-300", -300, "-300"},
    };
    for (const TakenRow& row : rows) {
        SCOPED_TRACE(row.typed);
        FieldRow named = row.row;
        named.box = "txtWidth";
        const Field field(named, page);
        float kept = 7;
        field.box->setText(QString::fromUtf8(row.typed));
        field.Take(&kept);
        EXPECT_EQ(kept, row.kept);
        EXPECT_EQ(field.box->Text(), row.shown);
        delete field.box;
        delete field.label;
    }
}

TEST_F(FieldTest, TakesTextsAndWholeNumbersByTheTypeOfTheirPlace) {
    const Field& title = Add({.box = "txtTitle", .reading = Reading::Text, .longest = 4});
    const Field& name = Add({.box = "txtName", .reading = Reading::Trimmed});
    const Field& count = Add({.box = "txtCount", .limits = {1, 360}});
    std::string kept;
    title.Fill(&(kept = " äbcde "));
    title.Take(&kept);
    EXPECT_EQ(kept, " äbc");
    name.box->Write("  a b ");
    name.Take(&kept);
    EXPECT_EQ(kept, "a b");
    std::int16_t number = 7;
    for (const auto& [typed, whole] : {std::pair("12.5", 12), {"1000", 360}, {"0", 1}}) {
        count.box->Write(typed);
        count.Take(&number);
        EXPECT_EQ(number, whole) << typed;
    }
    count.Fill(&number);
    EXPECT_EQ(count.box->Text(), "1");
}

TEST_F(FieldTest, ShowsWhatItKeepsWhileTheUserTypesOnlyWhereItSaysSo) {
    Add({.box = "txtOther"}); // where Tab leads
    for (const Showing showing : {Showing::Held, Showing::HeldAtOnce}) {
        const Field& field = Add({.box = "txtWidth", .limits = kOneToFifteen, .showing = showing});
        float kept = 0;
        OnChange(*field.box, [&] { field.Take(&kept); });
        page.show();
        page.activateWindow();
        ASSERT_TRUE(QTest::qWaitForWindowActive(&page));
        field.box->setFocus();
        QTest::keyClicks(field.box, QStringLiteral("20"));
        EXPECT_EQ(field.box->Text(), showing == Showing::Held ? "20" : "15");
        QTest::keyClick(field.box, Qt::Key_Tab);
        EXPECT_EQ(field.box->Text(), "15");
    }
}

TEST_F(FieldTest, ArrowsStepThePartnerWhereThereIsOne) {
    const Field& own = Add({.box = "txtA", .arrows = {"UpDown1", {0, 9}}});
    const Field& pair = Add({.box = "txtB", .arrows = {"UpDown2", {0, 9}, "txtB10", 0.1}});
    const Field& free = Add({.box = "txtC", .arrows = {"UpDown3"}});
    for (const Field* field : fields) {
        field->arrows->Up();
    }
    EXPECT_EQ(own.box->Text(), "1");
    EXPECT_EQ(pair.box->Text(), "");
    EXPECT_EQ(pair.partner->Text(), "1");
    EXPECT_EQ(free.box->Text(), "");
}

TEST_F(FieldTest, IsEnabledAndDisabledButForItsIllustration) {
    const Field& field = Add({.box = "txtA", .arrows = {"UpDown1", {0, 9}, "txtA10"}, .topic = 1});
    const auto enabled = [&] {
        return std::vector<bool>{field.label->isEnabled(), field.box->isEnabled(),
                                 field.arrows->isEnabled(), field.partner->isEnabled(),
                                 field.help->isEnabled()};
    };
    field.Disable();
    EXPECT_EQ(enabled(), (std::vector<bool>{false, false, false, false, true}));
    field.Enable();
    EXPECT_EQ(enabled(), std::vector<bool>(5, true));
}

TEST_F(FieldTest, IsFoundByItsPlace) {
    const Field& width = Add({.box = "txtA", .place = At<&D::PlateWidth>});
    const Field& title = Add({.box = "txtB", .place = At<&D::ScaleTitle>});
    EXPECT_EQ(&FieldOf(fields, At<&D::ScaleTitle>), &title);
    EXPECT_EQ(&FieldOf(fields, At<&D::PlateWidth>), &width);
}

} // namespace
} // namespace vernacle::test
