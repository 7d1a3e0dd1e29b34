// A table of real controls: names, headings in view, keyboard.
#include "desktop/setups/rowtable.h"

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

    const QHeaderView& HeadingsView() const { return On<QHeaderView>(table, "tblRowsHeadings"); }

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
        const auto& control = On<QWidget>(table, firsts[column]);
        EXPECT_EQ(HeadingsView().model()->headerData(column, Qt::Horizontal).toString(),
                  QLatin1String(kHeadings[column]));
        const int margin = HeadingsView().style()->pixelMetric(QStyle::PM_HeaderMargin);
        const QPoint text(HeadingsView().sectionViewportPosition(column) + margin, 0);
        EXPECT_NEAR(HeadingsView().mapTo(&table, text).x(), control.mapTo(&table, QPoint()).x(), 2);
        EXPECT_GE(HeadingsView().sectionSize(column), HeadingsView().sectionSizeHint(column));
    }
}

TEST_F(RowTableTest, HeadingsStayWhileTheRowsScroll) {
    const auto& scroller = On<QScrollArea>(table, "tblRowsScroller");
    const int before = HeadingsView().mapTo(&table, QPoint()).y();
    const int row = On<QWidget>(table, "txtText0").mapTo(&table, QPoint()).y();
    EXPECT_GT(scroller.verticalScrollBar()->maximum(), 0);
    scroller.verticalScrollBar()->setValue(100);
    EXPECT_EQ(HeadingsView().mapTo(&table, QPoint()).y(), before);
    EXPECT_FALSE(HeadingsView().viewport()->visibleRegion().isEmpty());
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
