// A table of real controls: names, headings in view, keyboard.
#include "desktop/setups/rowtable.h"

#include <QLineEdit>
#include <QScrollArea>
#include <QScrollBar>

#include "desktop/setups/setuptest.h"

namespace vernacle::test {
namespace {

constexpr const char* kHeadings[] = {"Number:", "Text:", "Yes or no?"};
constexpr int kTableRows = 40;

class RowTableTest : public SetupFormTest {
protected:
    RowTableTest() {
        for (int row = 0; row < kTableRows; ++row) {
            auto* edit = new QLineEdit;
            edit->setObjectName(QString::fromStdString(RowName("txtText", row)));
            table.AddRow(
                {MakeRowLabel("Number", row), edit,
                 MakeRowChoice("fraChoice", "Choice", {"Yes", "Yes"}, {"No", "No"}, row).frame});
        }
        table.AlignHeadings();
        table.resize(table.minimumWidth() + 40, 300);
        table.show();
        Settle();
    }

    RowTable table{"tblRows", kHeadings};
};

TEST_F(RowTableTest, ControlsAreNamedByTheirRows) {
    EXPECT_EQ(RowName("PrintTicYes", 3), "PrintTicYes3");
    for (const int row : {0, 3, 39}) {
        const auto& frame = On<QFrame>(table, RowName("fraChoice", row));
        const auto& yes = On<OptionButton>(table, RowName("Yes", row));
        EXPECT_TRUE(frame.isAncestorOf(&yes));
        EXPECT_EQ(yes.accessibleName().toStdString(), "Choice " + std::to_string(row) + ": Yes");
    }
}

TEST_F(RowTableTest, EachRowHasOneAnswerOrNone) {
    auto& yes = On<OptionButton>(table, "Yes1");
    auto& no = On<OptionButton>(table, "No1");
    EXPECT_FALSE(yes.isChecked() || no.isChecked());
    Click(yes);
    Click(On<OptionButton>(table, "No2"));
    EXPECT_TRUE(yes.isChecked());
    Click(no);
    EXPECT_TRUE(no.isChecked());
    EXPECT_FALSE(yes.isChecked());
}

TEST_F(RowTableTest, HeadingsStandAboveTheirColumns) {
    const char* const firsts[] = {"Number0", "txtText0", "fraChoice0"};
    for (int column = 0; column < 3; ++column) {
        const auto& heading = On<QLabel>(table, "tblRows" + std::to_string(column));
        const auto& control = On<QWidget>(table, firsts[column]);
        EXPECT_EQ(heading.text(), QLatin1String(kHeadings[column]));
        EXPECT_NEAR(heading.mapTo(&table, QPoint()).x(), control.mapTo(&table, QPoint()).x(), 2);
    }
}

TEST_F(RowTableTest, HeadingsStayWhileTheRowsScroll) {
    const auto& scroller = On<QScrollArea>(table, "tblRowsScroller");
    const auto& heading = On<QLabel>(table, "tblRows0");
    const int before = heading.mapTo(&table, QPoint()).y();
    const int row = On<QWidget>(table, "txtText0").mapTo(&table, QPoint()).y();
    EXPECT_GT(scroller.verticalScrollBar()->maximum(), 0);
    scroller.verticalScrollBar()->setValue(100);
    EXPECT_EQ(heading.mapTo(&table, QPoint()).y(), before);
    EXPECT_EQ(On<QWidget>(table, "txtText0").mapTo(&table, QPoint()).y(), row - 100);
}

TEST_F(RowTableTest, TabWalksTheRowsAndBringsThemIntoView) {
    auto& scroller = On<QScrollArea>(table, "tblRowsScroller");
    table.activateWindow();
    On<QLineEdit>(table, "txtText0").setFocus();
    for (int step = 0; step < 2 * (kTableRows - 1); ++step) {
        QTest::keyClick(table.focusWidget(), Qt::Key_Tab);
    }
    EXPECT_EQ(table.focusWidget()->objectName().toStdString(), "txtText39");
    const QRect shown(table.focusWidget()->mapTo(scroller.viewport(), QPoint()),
                      table.focusWidget()->size());
    EXPECT_TRUE(scroller.viewport()->rect().contains(shown));
}

} // namespace
} // namespace vernacle::test
