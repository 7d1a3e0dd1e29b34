// Boxes, arrows and options: what runs their handlers, and where the arrows land.
#include <QVBoxLayout>

#include "desktop/kit/updown.h"
#include "onchange.h"
#include "support/formtest.h"

namespace vernacle::test {
namespace {

class ControlsTest : public FormTest {
protected:
    ControlsTest() {
        OnChange(box, [this] { seen.push_back(box.Text()); });
        auto* line = new QHBoxLayout(&window); // the arrows are as high as the box
        line->addWidget(&box);
        line->addWidget(&arrows);
        window.show();
    }
    ~ControlsTest() override { // the window must not delete them
        box.setParent(nullptr);
        arrows.setParent(nullptr);
    }

    QWidget window;
    EntryBox box{"txtBox", QStringLiteral("Box")};
    UpDown arrows{"UpDownBox", QStringLiteral("Box")};
    Strings seen; // texts for which the handler ran

    void Press(Qt::Key key) { QTest::keyClick(&box, key); }
};

TEST_F(ControlsTest, EachKeyRunsTheHandler) {
    QTest::keyClicks(&box, QStringLiteral("7.5"));
    EXPECT_EQ(seen, (Strings{"7", "7.", "7.5"}));
}

TEST_F(ControlsTest, AWriteRunsTheHandlerAlsoForTheTextThatIsThere) {
    box.Write("30");
    box.Write("30");
    EXPECT_EQ(seen, (Strings{"30", "30"}));
}

TEST_F(ControlsTest, ShowingRunsTheHandlerOnlyForAnotherText) {
    box.Show("30");
    box.Show("30");
    box.Show("31");
    EXPECT_EQ(seen, (Strings{"30", "31"}));
}

struct NumberRow {
    const char* text;
    float number;
};

TEST_F(ControlsTest, NumberIsWhatTheTextStartsWith) {
    const NumberRow rows[] = {
        {"", 0},         {"abc", 0},    {"12.5mm", 12.5F}, {"-20", -20},       {"1 2", 1},
        {"3.5.5", 3.5F}, {"1e3", 1000}, {"1E38", 1e30F},   {"-1E300", -1e30F},
    };
    for (const NumberRow& row : rows) {
        box.Show(row.text);
        EXPECT_EQ(box.Number(), row.number) << row.text;
    }
}

TEST_F(ControlsTest, TwoBoxesThatWriteEachOtherComeToAnEnd) {
    EntryBox other("txtOther", QStringLiteral("Other"));
    int runs = 0;
    OnChange(box, [&] { other.Write(box.Text()); });
    OnChange(other, [&] {
        ++runs;
        box.Write(other.Text());
    });
    box.Write("1");
    EXPECT_EQ(other.Text(), "1");
    EXPECT_EQ(runs, 1);
    other.Write("1");
    EXPECT_EQ(runs, 2);
}

TEST_F(ControlsTest, AHandlerThatFailsLeavesTheBoxInOrder) {
    OnChange(box, [] { throw std::runtime_error("no"); });
    EXPECT_THROW(box.Write("1"), std::runtime_error);
    int runs = 0;
    OnChange(box, [&] { ++runs; });
    box.Write("1"); // the same text: runs, as nothing is under way
    EXPECT_EQ(runs, 1);
}

TEST_F(ControlsTest, ARewrittenBoxKeepsItsCursorAtTheEnd) {
    box.Write("12.5");
    EXPECT_EQ(box.cursorPosition(), 4);
}

struct StepRow {
    const char* shown;
    const char* up;
    const char* down;
};

TEST_F(ControlsTest, ArrowsStepFromWhatIsShownAndLandInsideTheirRange) {
    arrows.AttachTo(box, {0, 10});
    const StepRow rows[] = {
        {"5", "6", "4"},          {" 5", "6", "4"},       {"10", "10", "9"},
        {"0", "1", "0"},          {"15", "10", "10"},     {"-3", "0", "0"},
        {"2.5", "3.5", "1.5"},    {".5", "1.5", "0"},     {"", "1", "0"},
        {"garbage", "1", "0"},    {"9.75", "10", "8.75"}, {"2,5", "3.5", "1.5"},
        {"1.2.3", "2.23", ".23"}, {".002k", "3", "1"},
    };
    for (const StepRow& row : rows) {
        box.Write(row.shown);
        Click(On<QWidget>(window, "UpDownBoxUp"));
        EXPECT_EQ(box.Text(), row.up) << "up from " << row.shown;
        box.Write(row.shown);
        Click(On<QWidget>(window, "UpDownBoxDown"));
        EXPECT_EQ(box.Text(), row.down) << "down from " << row.shown;
        box.Write(row.shown);
        Press(Qt::Key_Up);
        EXPECT_EQ(box.Text(), row.up) << "key from " << row.shown;
        box.Write(row.shown);
        Press(Qt::Key_Down);
        EXPECT_EQ(box.Text(), row.down) << "key from " << row.shown;
    }
}

TEST_F(ControlsTest, LongNumbersAreSteppedFromToo) {
    arrows.AttachTo(box, {0, 10});
    box.Write("3.333333E-02"); // more than an entry's ten characters
    Click(On<QWidget>(window, "UpDownBoxUp"));
    EXPECT_EQ(box.Text(), "1.033333");
}

TEST_F(ControlsTest, TheKeypadsArrowsStepToo) {
    arrows.AttachTo(box, {0, 10});
    box.Write("3");
    QTest::keyClick(&box, Qt::Key_Up, Qt::KeypadModifier);
    EXPECT_EQ(box.Text(), "4");
}

TEST_F(ControlsTest, ArrowsRunTheBoxesHandler) {
    arrows.AttachTo(box, {0, 10});
    box.Write("3");
    seen.clear();
    Click(On<QWidget>(window, "UpDownBoxUp"));
    EXPECT_EQ(seen, Strings{"4"});
}

TEST_F(ControlsTest, AHeldArrowGoesOnStepping) {
    arrows.AttachTo(box, {0, 1000});
    box.Write("3");
    QWidget& up = On<QWidget>(window, "UpDownBoxUp");
    QTest::mousePress(&up, Qt::LeftButton);
    EXPECT_TRUE(QTest::qWaitFor([this] { return box.Number() >= 6; }));
    QTest::mouseRelease(&up, Qt::LeftButton);
}

TEST_F(ControlsTest, DisabledArrowsDoNotStepByKeysEither) {
    arrows.AttachTo(box, {0, 10});
    arrows.setEnabled(false);
    box.Write("3");
    Press(Qt::Key_Up);
    Click(On<QWidget>(window, "UpDownBoxUp"));
    EXPECT_EQ(box.Text(), "3");
}

TEST_F(ControlsTest, ABoxWithoutArrowsIgnoresTheKeys) {
    box.Write("3");
    Press(Qt::Key_Up);
    Press(Qt::Key_Down);
    EXPECT_EQ(box.Text(), "3");
}

TEST_F(ControlsTest, AWarningReadsOnEveryDesktop) {
    box.SetBackground(QColor(0xFF, 0xEE, 0xEE));
    EXPECT_EQ(box.palette().color(QPalette::Base), QColor(0xFF, 0xEE, 0xEE));
    EXPECT_EQ(box.palette().color(QPalette::Text), QColor(Qt::black));
}

class OptionsTest : public FormTest {
protected:
    OptionsTest() {
        auto* column = new QVBoxLayout(&window);
        for (OptionButton* option : {yes, no}) {
            column->addWidget(option);
        }
        QObject::connect(yes, &OptionButton::Selected, yes, [this] { runs += "Y"; });
        QObject::connect(no, &OptionButton::Selected, no, [this] { runs += "N"; });
        window.show();
    }

    QWidget window;
    OptionButton* yes = new OptionButton("optYes", QStringLiteral("Yes"));
    OptionButton* no = new OptionButton("optNo", QStringLiteral("No"));
    std::string runs;
};

TEST_F(OptionsTest, AClickRunsTheHandlerAlsoOfTheOneThatIsSelected) {
    Click(*yes);
    Click(*yes);
    Click(*no);
    EXPECT_EQ(runs, "YYN");
    EXPECT_FALSE(yes->isChecked());
    EXPECT_TRUE(no->isChecked());
}

TEST_F(OptionsTest, TheProgramsSelectionRunsItToo) {
    no->Select();
    EXPECT_TRUE(no->isChecked());
    EXPECT_EQ(runs, "N");
}

TEST_F(OptionsTest, ShowingOneRunsNothing) {
    no->ShowSelected();
    EXPECT_TRUE(no->isChecked());
    EXPECT_EQ(runs, "");
}

TEST_F(OptionsTest, UnselectLeavesTheGroupWithoutOne) {
    yes->Select();
    yes->Unselect();
    EXPECT_FALSE(yes->isChecked());
    EXPECT_FALSE(no->isChecked());
    Click(*no);
    Click(*yes);
    EXPECT_FALSE(no->isChecked()) << "still exclusive";
}

TEST_F(OptionsTest, TheArrowKeysMoveTheSelection) {
    window.activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&window));
    yes->Select();
    yes->setFocus();
    QTest::keyClick(yes, Qt::Key_Down);
    EXPECT_TRUE(no->isChecked());
    EXPECT_EQ(runs, "YN");
}

TEST_F(OptionsTest, WearsTheColoursThatItIsGiven) {
    yes->SetInk(Qt::red);
    yes->SetGround(Qt::yellow);
    EXPECT_EQ(yes->palette().color(QPalette::WindowText), QColor(Qt::red));
    EXPECT_EQ(yes->palette().color(QPalette::Window), QColor(Qt::yellow));
    EXPECT_TRUE(yes->autoFillBackground());
}

} // namespace
} // namespace vernacle::test
