// A box whose handler writes into it: what it shows between two keys and when it is left, and what
// a click selects.
#include "desktop/kit/entrybox.h"

#include <QAction>
#include <QClipboard>
#include <QInputMethodEvent>
#include <QMenu>
#include <QVBoxLayout>

#include "desktop/kit/updown.h"
#include "engine/base/numbertext.h"
#include "engine/core/entry.h"
#include "onchange.h"
#include "support/formtest.h"

namespace vernacle::test {
namespace {

constexpr EntryLimits kLimits{0.5, 15};

// A page with a box that is held to 0.5 .. 15, and with what a user can leave it for.
class TypingTest : public FormTest {
protected:
    TypingTest() {
        auto* column = new QVBoxLayout(&window);
        for (QWidget* part :
             std::initializer_list<QWidget*>{before, box, arrows, other, label, button, toolless}) {
            column->addWidget(part);
        }
        arrows->AttachTo(*box, {0, 30});
        arrows->setMinimumHeight(40);
        toolless->setFocusPolicy(Qt::NoFocus);
        shortcut->setShortcut(QKeySequence(QStringLiteral("Ctrl+S")));
        window.addAction(shortcut);
        OnChange(*box, [this] { Changed(); });
        window.show();
        window.activateWindow();
        EXPECT_TRUE(QTest::qWaitForWindowActive(&window));
        Restart();
    }

    // Holds what is typed, and keeps the text for which it ran with the value that came of it.
    void Changed() {
        std::string text = box->Text();
        float entered = 0;
        ParseEntry(text, entered);
        value = kLimits.Held(entered);
        seen.push_back(box->Text() + "=" + PlainNumber(value));
        box->ShowHeld(entered, value);
    }

    void Restart() {
        before->setFocus();
        box->Write("7");
        box->setFocus();
        box->selectAll();
        seen.clear();
    }

    void Keys(const char* keys) const { QTest::keyClicks(box, QLatin1String(keys)); }

    QWidget window;
    QLineEdit* before = new QLineEdit;
    EntryBox* box = new EntryBox("txtBox", QStringLiteral("Box"));
    UpDown* arrows = new UpDown("UpDownBox", QStringLiteral("Box"));
    QLineEdit* other = new QLineEdit;
    QLabel* label = new QLabel(QStringLiteral("label"));
    QPushButton* button = new QPushButton;
    QPushButton* toolless = new QPushButton; // takes no focus, as a toolbar's
    QAction* shortcut = new QAction(&window);
    float value = 0;
    Strings seen;
};

TEST_F(TypingTest, ValueFollowsEachKeyAndTheTextStays) {
    Keys("0.8");
    EXPECT_EQ(seen, (Strings{"0=.5", "0.=.5", "0.8=.8"}));
    EXPECT_EQ(box->Text(), "0.8");
    QTest::keyClick(box, Qt::Key_Tab);
    EXPECT_EQ(box->Text(), "0.8") << "what was not held is not rewritten";
    EXPECT_EQ(seen.size(), 3U);
}

struct Leaving {
    const char* way;
    std::function<void()> leave;
    std::string shown; // behind "20", which is held to 15
};

TEST_F(TypingTest, TextIsRewrittenWhenTheBoxIsLeft) {
    const auto click = [](QWidget* control) { QTest::mouseClick(control, Qt::LeftButton); };
    const auto key = [this](Qt::Key pressed) { QTest::keyClick(box, pressed); };
    const Leaving ways[] = {
        {"Tab", [&] { key(Qt::Key_Tab); }, "15"},
        {"Backtab", [&] { key(Qt::Key_Backtab); }, "15"},
        {"Return", [&] { key(Qt::Key_Return); }, "15"},
        {"Enter", [&] { key(Qt::Key_Enter); }, "15"},
        {"the Down key", [&] { key(Qt::Key_Down); }, "14"},
        {"the Up key", [&] { key(Qt::Key_Up); }, "15"},
        {"an arrow", [&] { Click(On<QWidget>(*arrows, "UpDownBoxDown")); }, "14"},
        {"another box", [&] { click(other); }, "15"},
        {"a button", [&] { click(button); }, "15"},
        {"a button without focus", [&] { click(toolless); }, "15"},
        {"a label", [&] { click(label); }, "15"},
        {"a shortcut", [&] { QTest::keyClick(box, Qt::Key_S, Qt::ControlModifier); }, "15"},
        {"the program", [&] { other->setFocus(); }, "15"},
        {"disabling", [&] { box->setEnabled(false); }, "15"},
    };
    for (const Leaving& row : ways) {
        SCOPED_TRACE(row.way);
        box->setEnabled(true);
        Restart();
        Keys("20");
        EXPECT_EQ(box->Text(), "20");
        EXPECT_EQ(value, 15);
        row.leave();
        EXPECT_EQ(box->Text(), row.shown);
        EXPECT_EQ(value, static_cast<float>(NumericValue(row.shown)));
    }
}

// Its actions find the box rewritten already.
TEST_F(TypingTest, WhatIsPressedComesAfterTheRewriting) {
    Strings found;
    const auto look = [&] { found.push_back(box->Text()); };
    QObject::connect(toolless, &QPushButton::clicked, &window, look);
    QObject::connect(button, &QPushButton::clicked, &window, look);
    QObject::connect(shortcut, &QAction::triggered, &window, look);
    QObject::connect(box, &QLineEdit::returnPressed, &window, look);
    const std::function<void()> presses[] = {
        [this] { QTest::mouseClick(toolless, Qt::LeftButton); },
        [this] { QTest::mouseClick(button, Qt::LeftButton); },
        [this] { QTest::keyClick(box, Qt::Key_S, Qt::ControlModifier); },
        [this] { QTest::keyClick(box, Qt::Key_Return); }};
    for (const auto& press : presses) {
        Restart();
        Keys("20");
        press();
    }
    EXPECT_EQ(found, Strings(4, "15"));
}

TEST_F(TypingTest, RewritingRunsTheHandlerLikeAnyWrite) {
    Keys("20");
    QTest::keyClick(box, Qt::Key_Tab);
    EXPECT_EQ(seen, (Strings{"2=2", "20=15", "15=15"}));
}

TEST_F(TypingTest, ALaterKeyWithdrawsIt) {
    Keys("20");
    QTest::keyClick(box, Qt::Key_Backspace);
    EXPECT_EQ(value, 2);
    QTest::keyClick(box, Qt::Key_Tab);
    EXPECT_EQ(box->Text(), "2");
    EXPECT_EQ(value, 2);
}

TEST_F(TypingTest, KeysGoOnFromWhereTheyWere) {
    Keys("0.25");
    box->setCursorPosition(2);
    Keys("9");
    EXPECT_EQ(box->Text(), "0.925");
    EXPECT_EQ(box->cursorPosition(), 3);
    QTest::keyClick(box, Qt::Key_Delete);
    EXPECT_EQ(box->Text(), "0.95");
    EXPECT_EQ(value, 0.95F);
}

TEST_F(TypingTest, ErasedBoxShowsTheLimitWhenItIsLeft) {
    QTest::keyClick(box, Qt::Key_Delete);
    EXPECT_EQ(box->Text(), "");
    EXPECT_EQ(value, 0.5F);
    QTest::keyClick(box, Qt::Key_Tab);
    EXPECT_EQ(box->Text(), ".5");
}

TEST_F(TypingTest, TheProgramsTextsAreRewrittenAtOnce) {
    box->Write("20");
    EXPECT_EQ(box->Text(), "15");
    Keys("3");
    box->Show("0.1");
    EXPECT_EQ(box->Text(), ".5");
    box->selectAll();
    box->insert(QStringLiteral("77")); // as a drop, or the middle button
    EXPECT_EQ(box->Text(), "15");
}

TEST_F(TypingTest, WhatIsPastedIsRewrittenAtOnce) {
    QApplication::clipboard()->setText(QStringLiteral("20"));
    QTest::keyClick(box, Qt::Key_V, Qt::ControlModifier);
    EXPECT_EQ(box->Text(), "15");
    box->selectAll();
    QTest::keyClick(box, Qt::Key_Insert, Qt::ShiftModifier);
    EXPECT_EQ(box->Text(), "15");
    EXPECT_EQ(seen, (Strings{"20=15", "15=15", "20=15", "15=15"}));
}

TEST_F(TypingTest, CutAndUndoAreKeysToo) {
    Keys("20");
    QTest::keyClick(box, Qt::Key_A, Qt::ControlModifier);
    QTest::keyClick(box, Qt::Key_X, Qt::ControlModifier);
    EXPECT_EQ(box->Text(), "");
    QTest::keyClick(box, Qt::Key_Z, Qt::ControlModifier);
    EXPECT_EQ(box->Text(), "20");
    QTest::keyClick(box, Qt::Key_Tab);
    EXPECT_EQ(box->Text(), "15");
}

TEST_F(TypingTest, ComposedCharactersAreTyped) {
    const auto compose = [this](const char* text) {
        QInputMethodEvent event;
        event.setCommitString(QLatin1String(text));
        QApplication::sendEvent(box, &event);
    };
    compose("2");
    compose("0");
    EXPECT_EQ(box->Text(), "20");
    QTest::keyClick(box, Qt::Key_Tab);
    EXPECT_EQ(box->Text(), "15");
}

// A menu above it, or a look at another window, and the user goes on typing.
TEST_F(TypingTest, MenusAndOtherWindowsDoNotLeaveIt) {
    Keys("0.");
    QMenu menu(box);
    menu.addAction(QStringLiteral("Select All"));
    menu.popup(box->mapToGlobal(QPoint()));
    QTest::mouseClick(&menu, Qt::LeftButton, {}, QPoint(1, 1));
    menu.close();
    QWidget elsewhere;
    elsewhere.show();
    elsewhere.activateWindow();
    EXPECT_TRUE(QTest::qWaitForWindowActive(&elsewhere));
    elsewhere.hide();
    window.activateWindow();
    EXPECT_TRUE(QTest::qWaitForWindowActive(&window));
    EXPECT_EQ(box->Text(), "0.");
    EXPECT_TRUE(box->hasFocus());
    box->end(false);
    Keys("8");
    EXPECT_EQ(value, 0.8F);
}

TEST_F(TypingTest, ABoxWithoutTheFocusIsRewrittenAtOnce) {
    other->setFocus();
    box->selectAll();
    Keys("20");
    EXPECT_EQ(box->Text(), "15");
}

TEST_F(TypingTest, ABoxThatSaysSoIsRewrittenAtOnce) {
    box->SetRewriting(Rewriting::AtOnce);
    Keys("20");
    EXPECT_EQ(box->Text(), "15");
    EXPECT_EQ(seen, (Strings{"2=2", "20=15", "15=15"}));
}

TEST_F(TypingTest, AFailedKeyLeavesTheBoxInOrder) {
    OnChange(*box, [] { throw std::runtime_error("no"); });
    EXPECT_THROW(Keys("2"), std::runtime_error);
    OnChange(*box, [this] { Changed(); });
    box->Write("20");
    EXPECT_EQ(box->Text(), "15") << "the key is not under way any more";
}

TEST_F(TypingTest, ABoxMayGoWhileATextWaits) {
    Keys("20");
    delete box;
    QTest::mouseClick(other, Qt::LeftButton);
    EXPECT_TRUE(other->hasFocus());
}

// The partner of a pair follows each key; the one that is typed into waits for what it tells back.
TEST_F(TypingTest, PairsAgreeWhenTheTypedOneIsLeft) {
    EntryBox partner("txtPartner", QStringLiteral("Partner"));
    Strings shown;
    OnChange(*box, [&] { partner.Show(PlainNumber(kLimits.Held(box->Number()))); });
    OnChange(partner, [&] {
        shown.push_back(partner.Text());
        box->Show(partner.Text());
    });
    Keys("40");
    EXPECT_EQ(shown, (Strings{"4", "15"}));
    EXPECT_EQ(box->Text(), "40");
    Keys("0"); // tells the partner nothing new
    EXPECT_EQ(box->Text(), "400");
    QTest::keyClick(box, Qt::Key_Tab);
    EXPECT_EQ(box->Text(), "15");
}

TEST_F(TypingTest, RangeIsToldByTipAndToScreenReaders) {
    box->TellRange("20 to 180 mm");
    EXPECT_EQ(box->toolTip(), QLatin1String("20 to 180 mm"));
    EXPECT_EQ(box->accessibleDescription(), QLatin1String("20 to 180 mm"));
}

// What the mouse selects.
class ClickTest : public TypingTest {
protected:
    ClickTest() {
        box->setText(QStringLiteral("12.5"));
        other->setFocus();
    }

    QPoint At(int character) const {
        const int text = box->fontMetrics().horizontalAdvance(box->text().left(character));
        return {text + 5, box->height() / 2};
    }
};

TEST_F(ClickTest, TheClickThatEntersSelectsAll) {
    QTest::mouseClick(box, Qt::LeftButton, {}, At(2));
    EXPECT_TRUE(box->hasFocus());
    EXPECT_EQ(box->selectedText(), QLatin1String("12.5"));
    Keys("3");
    EXPECT_EQ(box->Text(), "3");
}

TEST_F(ClickTest, TheSecondClickPlacesTheCursor) {
    QTest::mouseClick(box, Qt::LeftButton, {}, At(2));
    QTest::qWait(QApplication::doubleClickInterval() + 50);
    QTest::mouseClick(box, Qt::LeftButton, {}, At(2));
    EXPECT_FALSE(box->hasSelectedText());
    EXPECT_EQ(box->cursorPosition(), 2);
}

TEST_F(ClickTest, ADragSelectsWhatItCovers) {
    QTest::mousePress(box, Qt::LeftButton, {}, At(0));
    QMouseEvent move(QEvent::MouseMove, QPointF(At(2)), box->mapToGlobal(QPointF(At(2))),
                     Qt::NoButton, Qt::LeftButton, {});
    QApplication::sendEvent(box, &move);
    QTest::mouseRelease(box, Qt::LeftButton, {}, At(2));
    EXPECT_EQ(box->selectedText(), QLatin1String("12"));
}

TEST_F(ClickTest, OtherButtonsSelectNothing) {
    for (const Qt::MouseButton pressed : {Qt::MiddleButton, Qt::RightButton}) {
        other->setFocus();
        QTest::mouseClick(box, pressed, {}, At(2));
        EXPECT_FALSE(box->hasSelectedText());
    }
}

TEST_F(ClickTest, FocusThatTheProgramGivesSelectsNothing) {
    box->setFocus();
    EXPECT_FALSE(box->hasSelectedText());
    QTest::mouseClick(box, Qt::LeftButton, {}, At(2));
    EXPECT_FALSE(box->hasSelectedText());
}

} // namespace
} // namespace vernacle::test
