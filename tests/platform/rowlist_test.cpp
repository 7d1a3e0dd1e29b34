#include "platform/rowlist.h"

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
        list.OnChoose([this](int row) { chosen.push_back(row); });
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

TEST_F(RowListTest, FillingChoosesNothing) {
    list.clear();
    list.addItems({QStringLiteral("new")});
    EXPECT_TRUE(chosen.empty());
    EXPECT_EQ(list.currentRow(), -1);
}

} // namespace
} // namespace vernacle::test
