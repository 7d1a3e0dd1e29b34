#include "desktop/kit/rowlist.h"

#include <QFontInfo>

#include "support/formtest.h"

namespace vernacle::test {
namespace {

class RowListTest : public FormTest {
protected:
    RowListTest() {
        for (const char* row : {"first", "second", "third"}) {
            list.addItem(QLatin1String(row));
        }
        QObject::connect(&list, &RowList::Chosen, &list,
                         [this](int row) { chosen.push_back(row); });
        list.resize(200, 300); // some of it stays without rows
        list.show();
    }

    void ClickAt(QPoint place) { QTest::mouseClick(list.viewport(), Qt::LeftButton, {}, place); }
    void ClickRow(int row) { ClickAt(list.visualItemRect(list.item(row)).center()); }

    RowList list{"lstRows", QStringLiteral("Rows")};
    std::vector<int> chosen;
};

TEST_F(RowListTest, NamesAndFont) {
    EXPECT_EQ(list.objectName(), QLatin1String("lstRows"));
    EXPECT_EQ(list.accessibleName(), QLatin1String("Rows"));
    EXPECT_TRUE(QFontInfo(list.font()).fixedPitch());
}

TEST_F(RowListTest, ShowsWholeRowsAtAnyHeight) {
    for (int row = 0; row < 40; ++row) {
        list.addItem(QStringLiteral("more"));
    }
    for (int height = 200; height < 240; ++height) {
        list.resize(200, height);
        Settle();
        const int row = list.sizeHintForRow(0);
        EXPECT_EQ(list.viewport()->height() % row, 0) << height;
        EXPECT_GE(list.viewport()->height(), height - row - 4) << "as many as there is room for";
        list.scrollToBottom();
        const QRect last = list.visualItemRect(list.item(list.count() - 1));
        EXPECT_EQ(last.bottom(), list.viewport()->rect().bottom()) << height;
    }
}

TEST_F(RowListTest, AClickChoosesItsRowOnce) {
    ClickRow(1);
    ClickRow(0);
    ClickRow(0);
    EXPECT_EQ(chosen, (std::vector<int>{1, 0, 0}));
    EXPECT_EQ(list.currentRow(), 0);
}

TEST_F(RowListTest, AClickBesideTheRowsChoosesNone) {
    ClickRow(1);
    ClickAt({100, 280});
    EXPECT_EQ(chosen, (std::vector<int>{1, -1}));
    EXPECT_EQ(list.currentRow(), -1);
    EXPECT_TRUE(list.selectedItems().isEmpty());
}

TEST_F(RowListTest, KeysChooseToo) {
    list.setFocus();
    QTest::keyClick(&list, Qt::Key_Down);
    QTest::keyClick(&list, Qt::Key_Down);
    QTest::keyClick(&list, Qt::Key_End);
    QTest::keyClick(&list, Qt::Key_End); // already there
    QTest::keyClick(&list, Qt::Key_Home);
    EXPECT_FALSE(chosen.empty());
    EXPECT_EQ(chosen.back(), 0);
    EXPECT_EQ(std::count(chosen.begin(), chosen.end(), 2), 1);
}

TEST_F(RowListTest, KeysChooseTheFirstRowFromTheStart) {
    for (const Qt::Key key : {Qt::Key_Home, Qt::Key_Up, Qt::Key_Space}) {
        list.clear();
        list.addItems({QStringLiteral("first"), QStringLiteral("second")});
        chosen.clear();
        list.setFocus();
        list.setCurrentRow(0, QItemSelectionModel::NoUpdate); // where the focus puts it
        QTest::keyClick(&list, key);
        EXPECT_EQ(chosen, std::vector<int>{0}) << key;
        EXPECT_EQ(list.selectedItems().size(), 1);
    }
}

TEST_F(RowListTest, OtherKeysChooseNothing) {
    list.setFocus();
    for (const Qt::Key key : {Qt::Key_Shift, Qt::Key_Control, Qt::Key_F5}) {
        QTest::keyClick(&list, key);
    }
    EXPECT_TRUE(chosen.empty());
}

TEST_F(RowListTest, DraggingAndOtherButtonsChooseNothing) {
    ClickRow(0);
    const QPoint from = list.visualItemRect(list.item(0)).center();
    const QPoint to = list.visualItemRect(list.item(2)).center();
    QTest::mousePress(list.viewport(), Qt::LeftButton, {}, from);
    QTest::mouseMove(list.viewport(), to);
    QTest::mouseRelease(list.viewport(), Qt::LeftButton, {}, to);
    EXPECT_EQ(chosen, (std::vector<int>{0, 0}));
    EXPECT_EQ(list.currentRow(), 0);
    for (const Qt::MouseButton button : {Qt::RightButton, Qt::MiddleButton}) {
        QTest::mouseClick(list.viewport(), button, {}, to);
    }
    EXPECT_EQ(chosen.size(), 2U);
    EXPECT_EQ(list.currentRow(), 0);
}

TEST_F(RowListTest, FillingChoosesNothing) {
    list.clear();
    list.addItems({QStringLiteral("new")});
    EXPECT_TRUE(chosen.empty());
    EXPECT_EQ(list.currentRow(), -1);
}

} // namespace
} // namespace vernacle::test
