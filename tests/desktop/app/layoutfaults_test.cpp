// The checks of the layout find each kind of fault where there is one, and none where there is
// none.
#include "layoutfaults.h"

#include <QCoreApplication>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QScrollArea>
#include <QVBoxLayout>

#include <gtest/gtest.h>

namespace vernacle::test {

namespace {

using Names = std::vector<std::string>;

template <typename Control>
Control* Add(QWidget& form, const char* name, const QRect& place, const char* text = "Caption") {
    auto* control = new Control(&form);
    control->setObjectName(QLatin1String(name));
    control->setAccessibleName(QLatin1String(name));
    control->setText(QLatin1String(text));
    control->setGeometry(place);
    return control;
}

constexpr QRect kWide(10, 10, 200, 40);
constexpr QRect kNarrow(10, 10, 20, 40);
constexpr QRect kLow(10, 10, 200, 5);
constexpr QRect kBeside(220, 10, 100, 40);
constexpr QRect kTouching(210, 10, 100, 40);
constexpr QRect kOver(200, 45, 100, 40);
constexpr QRect kBeyond(310, 10, 100, 40);

class LayoutFaultsTest : public ::testing::Test {
protected:
    LayoutFaultsTest() {
        form.setObjectName(QStringLiteral("form"));
        form.resize(400, 300);
    }

    QWidget form;
};

TEST_F(LayoutFaultsTest, AFormWithoutFaultsHasNone) {
    Add<QPushButton>(form, "cmdOne", kWide);
    Add<QLineEdit>(form, "txtTwo", kTouching);
    EXPECT_EQ(CutOffControls(form), Faults());
    EXPECT_EQ(OverlappingControls(form), Faults());
    EXPECT_EQ(ControlsOutsideTheirParent(form), Faults());
    EXPECT_EQ(BadlyNamedControls(form), Faults());
    EXPECT_EQ(SilentControls(form), Faults());
    EXPECT_EQ(ScrollBarsShown(form), Faults());
}

TEST_F(LayoutFaultsTest, ANarrowOrLowControlIsCutOff) {
    Add<QPushButton>(form, "cmdNarrow", kNarrow);
    Add<QPushButton>(form, "cmdLow", kLow);
    Add<QLabel>(form, "lblNarrow", kNarrow);
    Add<QLineEdit>(form, "txtLow", kLow);
    Add<QLineEdit>(form, "txtNarrow", kBeside, "A text that is longer than its box is wide");
    EXPECT_EQ(CutOffControls(form).size(), 5U);
}

TEST_F(LayoutFaultsTest, AWrappedTextNeedsItsHeight) {
    auto* label = Add<QLabel>(form, "lblText", QRect(10, 10, 100, 20),
                              "A text that takes a few lines at this width");
    label->setWordWrap(true);
    EXPECT_EQ(CutOffControls(form).size(), 1U);
    label->resize(100, label->heightForWidth(100));
    EXPECT_EQ(CutOffControls(form), Faults());
}

TEST_F(LayoutFaultsTest, AButtonMayBeAsNarrowAsItsCaption) {
    Add<QPushButton>(form, "cmdHelp", QRect(10, 10, 30, 30), "H");
    EXPECT_EQ(CutOffControls(form), Faults());
}

TEST_F(LayoutFaultsTest, AContainerNeedsWhatItsLayoutNeeds) {
    auto* column = new QVBoxLayout(&form);
    column->setSizeConstraint(QLayout::SetNoConstraint);
    auto* button = new QPushButton;
    button->setObjectName(QStringLiteral("cmdTall"));
    button->setMinimumHeight(500);
    column->addWidget(button);
    ASSERT_EQ(CutOffControls(form).size(), 1U);
    EXPECT_TRUE(CutOffControls(form)[0].starts_with("form: "));
}

TEST_F(LayoutFaultsTest, SiblingsMayTouchButNotOverlap) {
    Add<QPushButton>(form, "cmdOne", kWide);
    Add<QPushButton>(form, "cmdTouching", kTouching);
    EXPECT_EQ(OverlappingControls(form), Faults());
    auto* over = Add<QPushButton>(form, "cmdOver", kOver);
    EXPECT_EQ(OverlappingControls(form).size(), 2U);
    over->hide();
    EXPECT_EQ(OverlappingControls(form), Faults());
}

TEST_F(LayoutFaultsTest, AControlStandsInsideItsParent) {
    auto* frame = new QWidget(&form);
    frame->setObjectName(QStringLiteral("frame"));
    frame->setGeometry(0, 0, 390, 200);
    Add<QPushButton>(*frame, "cmdInside", kBeside);
    EXPECT_EQ(ControlsOutsideTheirParent(form), Faults());
    Add<QPushButton>(*frame, "cmdBeyond", kBeyond);
    ASSERT_EQ(ControlsOutsideTheirParent(form).size(), 1U);
    EXPECT_TRUE(ControlsOutsideTheirParent(form)[0].starts_with("cmdBeyond: "));
}

TEST_F(LayoutFaultsTest, NamesAreThereAndAreNobodyElses) {
    Add<QPushButton>(form, "cmdOne", kWide);
    Add<QPushButton>(form, "cmdOne", kBeside)->hide();
    Add<QPushButton>(form, "", kOver);
    Add<QLabel>(form, "", kOver);
    Add<QLabel>(form, "", kOver, ""); // shows nothing
    EXPECT_EQ(BadlyNamedControls(form),
              Faults({"cmdOne: twice", "unnamed QPushButton", "unnamed QLabel \"Caption\""}));
}

TEST_F(LayoutFaultsTest, WhatTakesTheFocusHasSomethingToSay) {
    Add<QPushButton>(form, "cmdOne", kWide)->setAccessibleName({});
    Add<QLabel>(form, "lblTwo", kWide)->setAccessibleName({});
    EXPECT_EQ(SilentControls(form), Faults({"cmdOne"}));
}

TEST_F(LayoutFaultsTest, ScrollBarsAreSeen) {
    auto* scroller = new QScrollArea(&form);
    auto* content = new QWidget;
    content->setFixedSize(100, 1000);
    scroller->setWidget(content);
    scroller->resize(300, 200);
    form.setAttribute(Qt::WA_DontShowOnScreen);
    form.show();
    QCoreApplication::processEvents();
    ASSERT_EQ(ScrollBarsShown(form).size(), 1U);
    EXPECT_TRUE(ScrollBarsShown(form)[0].starts_with("down"));
    EXPECT_EQ(ControlsOutsideTheirParent(form), Faults());
}

TEST_F(LayoutFaultsTest, OneReadsBlocksSideBySideAndGridsRowByRow) {
    const auto make = [](const char* name) {
        auto* box = new QLineEdit;
        box->setObjectName(QLatin1String(name));
        return box;
    };
    auto* blocks = new QHBoxLayout(&form);
    auto* left = new QGridLayout;
    auto* right = new QVBoxLayout;
    blocks->addLayout(left);
    blocks->addLayout(right);
    right->addWidget(make("right1"));
    left->addWidget(make("row2"), 1, 0);
    left->addWidget(make("row1, right"), 0, 1);
    left->addWidget(make("row1"), 0, 0);
    right->addWidget(make("right2"));
    EXPECT_EQ(ReadingOrder(form), Names({"row1", "row1, right", "row2", "right1", "right2"}));
    EXPECT_EQ(TabOrder(form), Names({"right1", "row2", "row1, right", "row1", "right2"}));
    form.findChild<QWidget*>(QStringLiteral("row2"))->setEnabled(false);
    form.findChild<QWidget*>(QStringLiteral("right2"))->hide();
    EXPECT_EQ(ReadingOrder(form), Names({"row1", "row1, right", "right1"}));
    EXPECT_EQ(TabOrder(form), Names({"right1", "row1, right", "row1"}));
}

} // namespace

} // namespace vernacle::test
