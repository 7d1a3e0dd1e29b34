// The tic information beside the highlights page.
#include <QScreen>

#include "desktop/kit/rowlist.h"
#include "desktop/pages/pagedrawing.h"
#include "engine/base/runtimeerror.h"
#include "engine/scale/ticrows.h"

namespace vernacle::test {
namespace {

class ShowTicInfoTest : public DrawingPageTest {
protected:
    ~ShowTicInfoTest() override {
        for (QWidget* window : Windows()) {
            window->close();
        }
        Settle();
    }

    static std::vector<QWidget*> Windows() {
        std::vector<QWidget*> windows;
        for (QWidget* window : QApplication::topLevelWidgets()) {
            if (window->objectName() == QLatin1String("frmShowTicInfo") && window->isVisible()) {
                windows.push_back(window);
            }
        }
        return windows;
    }

    // Presses the page's button; gives the one window that is open then.
    QWidget& ShowInfo() {
        ClickAndSettle("cmdShowTicInfo");
        EXPECT_EQ(Windows().size(), 1U);
        return *Windows().at(0);
    }

    static std::string RowText(const QWidget& form, int row) {
        return form.findChild<RowList*>(QStringLiteral("lstTicsData"))
            ->item(row)
            ->text()
            .toStdString();
    }
    static int RowsOf(const QWidget& form) {
        return form.findChild<RowList*>(QStringLiteral("lstTicsData"))->count();
    }
};

TEST_F(ShowTicInfoTest, WorksInThePagesStartingState) {
    OpenPage("frmHighlights");
    Design.CurrentScale = 9;
    const QWidget& form = ShowInfo();
    EXPECT_EQ(Design.CurrentScale, 2) << "behind the rows";
    EXPECT_EQ(Design.TicLoop, 51);
    EXPECT_EQ(form.windowTitle(), QLatin1String("Vernacle - Show tic info"));
    EXPECT_EQ(On<QLabel>(form, "lblHeader").text(), QLatin1String("        Tic: Label: Defl%:"));
    EXPECT_EQ(On<QPushButton>(form, "cmdExit").text(), QLatin1String("Close"));
    EXPECT_EQ(form.windowModality(), Qt::NonModal);
    EXPECT_EQ(QApplication::activeModalWidget(), nullptr);
    EXPECT_TRUE(On<RowList>(form, "lstTicsData").fontInfo().fixedPitch());
    EXPECT_EQ(RowsOf(form), 51);
    EXPECT_EQ(RowText(form, 25), "Scale 1   25         50         ") << "no label, 50 percent";
    EXPECT_EQ(RowText(form, 50), "Scale 1   50    50   100         ");
}

TEST_F(ShowTicInfoTest, ListsDeletedTicsAndKnowsNoCorrection) {
    Design.StandardTicYN[1][20] = "N";
    Design.StandardLabelYN[1][20] = "N";
    for (int segment = 1; segment < kCurvePoints; ++segment) {
        Design.CorrectionSlope[segment] = 0.5F;
    }
    Design.LinearityExponent[1] = 2;
    OpenPage("frmHighlights");
    const QWidget& form = ShowInfo();
    EXPECT_EQ(RowText(form, 20), "Scale 1   20    20   16         ");
}

TEST_F(ShowTicInfoTest, GrowsWithTheScreen) {
    OpenPage("frmHighlights");
    const QWidget& form = ShowInfo();
    EXPECT_EQ(form.height(), 864) << "of 1080";
    const auto& list = On<RowList>(form, "lstTicsData");
    EXPECT_GE(list.viewport()->height() / list.sizeHintForRow(0), 40);
    EXPECT_GE(list.viewport()->width(), list.sizeHintForColumn(0)) << "whole rows across";
}

TEST_F(ShowTicInfoTest, CoversNoEntryAndNoCaption) {
    OpenPage("frmHighlights");
    const QWidget& form = ShowInfo();
    EXPECT_TRUE(form.screen()->availableGeometry().contains(form.geometry()));
    for (const auto* control : Page().findChildren<QWidget*>()) {
        const bool matters = control->focusPolicy() != Qt::NoFocus ||
                             qobject_cast<const QLabel*>(control) != nullptr;
        const QRect place(control->mapToGlobal(QPoint()), control->size());
        EXPECT_FALSE(matters && control->isVisible() && place.intersects(form.geometry()))
            << control->objectName().toStdString();
    }
}

TEST_F(ShowTicInfoTest, OneWindowThatIsRefilledAtEachPress) {
    OpenPage("frmHighlights");
    QWidget& first = ShowInfo();
    first.move(33, 44);
    Design.NrOfTicmarks[1] = 20;
    const QWidget& second = ShowInfo();
    EXPECT_EQ(RowsOf(second), 21);
    EXPECT_EQ(second.pos(), QPoint(33, 44));
}

TEST_F(ShowTicInfoTest, PageIsUsedMeanwhile) {
    OpenPage("frmHighlights");
    const QPointer<QWidget> form = &ShowInfo();
    EnableAll();
    Click("Option1");
    Type("txtStart1", "80");
    EXPECT_EQ(Design.HighlightStart[1], 80);
    EXPECT_TRUE(form && form->isVisible());
}

TEST_F(ShowTicInfoTest, StaysOpenUntilItIsClosed) {
    OpenPage("frmHighlights");
    const QPointer<QWidget> form = &ShowInfo();
    ClickAndSettle("Preview");
    EXPECT_EQ(PageName(), "frmPreview");
    ASSERT_FALSE(form.isNull());
    EXPECT_TRUE(form->isVisible());
    EXPECT_EQ(form->windowHandle()->transientParent(), Page().windowHandle());
    EXPECT_TRUE(Page().isActiveWindow()) << "the keys stay with the page";
    Click(On<QPushButton>(*form, "cmdExit"));
    Settle();
    EXPECT_TRUE(form.isNull());
    EXPECT_FALSE(TakeProcessEnd());
}

TEST_F(ShowTicInfoTest, EscapeAndTheCloseBoxCloseIt) {
    OpenPage("frmHighlights");
    QPointer<QWidget> form = &ShowInfo();
    form->activateWindow();
    Settle();
    QTest::keyClick(form, Qt::Key_Escape);
    Settle();
    EXPECT_TRUE(form.isNull());
    form = &ShowInfo();
    CloseByUser(*form);
    Settle();
    EXPECT_TRUE(form.isNull());
    EXPECT_EQ(PageName(), "frmHighlights");
    EXPECT_FALSE(TakeProcessEnd());
    EXPECT_FALSE(Exists("LASTSESSION.VRN"));
}

TEST_F(ShowTicInfoTest, ListTakesNoClicks) {
    OpenPage("frmHighlights");
    QWidget& form = ShowInfo();
    auto& list = On<RowList>(form, "lstTicsData");
    const std::int16_t scale = Design.CurrentScale;
    const float tic = Design.TicLoop;
    QTest::mouseClick(list.viewport(), Qt::LeftButton, {},
                      list.visualItemRect(list.item(3)).center());
    EXPECT_TRUE(list.selectedItems().isEmpty());
    EXPECT_EQ(Design.CurrentScale, scale);
    EXPECT_EQ(Design.TicLoop, tic);
}

TEST_F(ShowTicInfoTest, SpecialScalesShowTheirOwnTables) {
    Design.SpecialNrOfTicmarks[1] = 4;
    Design.TicLabelText[1][2] = " mid ";
    Design.TicDeflection[1][2] = 0.4567F;
    OpenPage("frmHighlights");
    Design.ScaleColor[1] = -1;
    const QWidget& form = ShowInfo();
    EXPECT_EQ(RowsOf(form), 5);
    EXPECT_EQ(RowText(form, 2), "Scale 1   2     mid  45.67         ");
}

TEST_F(ShowTicInfoTest, TooManyRowsAreARunTimeError) {
    OpenPage("frmHighlights");
    Design.NumberOfScales = 5;
    for (int scale = 1; scale <= 5; ++scale) {
        Design.NrOfTicmarks[scale] = 360;
    }
    EXPECT_THROW(Click("cmdShowTicInfo"), RunTimeError);
    EXPECT_TRUE(Windows().empty());
}

} // namespace
} // namespace vernacle::test
