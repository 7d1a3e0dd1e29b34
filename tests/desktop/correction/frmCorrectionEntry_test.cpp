// The correction entry on its own controls, dragged handles included.
#include "desktop/correction/frmCorrectionEntry.h"

#include <QPlainTextEdit>

#include "desktop/correction/curvehandle.h"
#include "desktop/correction/curvepicture.h"
#include "engine/base/hostservices.h"
#include "engine/base/numbertext.h"
#include "engine/output/hpgl.h"
#include "engine/output/print.h"
#include "engine/render/drawing.h"
#include "support/formtest.h"

namespace vernacle::test {
namespace {

constexpr const char* kDisallowed = "information: Disallowed entry";

class CorrectionEntryTest : public FormTest {
protected:
    using Use = std::function<void()>;

    // With the page open above the plate page; it is left by its button.
    void OnPage(const Use& use) {
        OpenPage("frmPlate");
        Answer([&](QWidget& form) {
            EXPECT_EQ(form.objectName(), QLatin1String("frmCorrectionEntry"));
            form_ = &form;
            Settle();
            use();
            if (form.isVisible()) {
                Click(The<QPushButton>("cmdExitNo"));
            }
            EXPECT_FALSE(form.isVisible());
        });
        Find("cmdLinearity").setEnabled(true);
        Click("cmdLinearity");
        EXPECT_TRUE(AllAnswered());
    }

    QWidget& Form() const { return *form_; }
    template <typename Control = QWidget>
    Control& The(const std::string& name) const {
        return On<Control>(*form_, name);
    }
    EntryBox& Text(int number) const { return The<EntryBox>("Text" + std::to_string(number)); }
    std::string TextIn(int number) const { return Text(number).Text(); }
    Strings Texts(int first, int last) const {
        Strings texts;
        for (int number = first; number <= last; ++number) {
            texts.push_back(TextIn(number));
        }
        return texts;
    }
    void Enter(int number, const std::string& text) const {
        Text(number).selectAll();
        Text(number).insert(QString::fromStdString(text));
    }
    void Press(const std::string& button) const { Click(The<QPushButton>(button)); }

    CurvePicture& Plot() const { return The<CurvePicture>("picCurve"); }
    CurveHandle& Handle(int point) const {
        return The<CurveHandle>("Image" + std::to_string(point));
    }
    Strings Drawn() const { return Recorded(Plot()).calls; }

    // Drags the handle to those fractions, as a user does.
    void Drag(int point, double current, double deflection) const {
        const QPointF to = Plot().ToWidget(5000 + 5000 * current, 6000 - 5000 * deflection);
        DragTo(point, to.toPoint());
    }
    void DragTo(int point, const QPoint& toOnPlot) const {
        CurveHandle& handle = Handle(point);
        const QPoint grip = handle.rect().center();
        QTest::mousePress(&handle, Qt::LeftButton, {}, grip);
        QTest::mouseMove(&handle, handle.mapFromParent(toOnPlot) / 2);
        QTest::mouseMove(&handle, handle.mapFromParent(toOnPlot));
        QTest::mouseRelease(&handle, Qt::LeftButton, {}, handle.mapFromParent(toOnPlot));
    }

    static float Current(int point) { return Design.CorrectionPair[2 * point + 1]; }
    static float Deflection(int point) { return Design.CorrectionPair[2 * point + 2]; }

    std::string WriteCurve(const std::string& name, const std::string& points) const {
        return WriteFile(name, "Meter data\r\n! a comment\r\nto-day\r\n7\r\nX Y\r\n" + points);
    }

private:
    QWidget* form_ = nullptr;
};

TEST_F(CorrectionEntryTest, CaptionsAndTitle) {
    OnPage([this] {
        ExpectShown(
            Form(),
            {{"Label5", "Movement nonlinearity correction"},
             {"Label8", "Current %:"},
             {"Label9", "Deflection %:"},
             {"Label0", "Point 0:"},
             {"Label4", "Point 4:"},
             {"Label11", "Point 5:"},
             {"Label12", "Point 6:"},
             {"Label6", "Current %"},
             {"Label7", "Deflection %:"},
             {"LabelZero", "0"},
             {"Label60", "60"},
             {"Label100", "100"},
             {"LabelZeroV", "0"},
             {"Label20V", "20"},
             {"Label100V", "100"},
             {"Label10",
              "Use either drag / drop or textbox entry to enter the new transfer function."},
             {"cmdAcceptXY", "Apply these entries"},
             {"cmdRead", "Get old curve"},
             {"cmdWrite", "Save this curve"},
             {"cmdRestore", "Restore to linear"},
             {"cmdShowTable", "Show table"},
             {"cmdExitNo", "Return to Plate design"}});
        EXPECT_EQ(Form().windowTitle(), QLatin1String("Vernacle - Correction Entry"));
        EXPECT_TRUE(Form().isModal());
    });
    Design.DesignFileName = "/designs/mine.VRN";
    OnPage([this] {
        EXPECT_EQ(Form().windowTitle(),
                  QLatin1String("Vernacle - Correction Entry - /designs/mine.VRN"));
    });
}

TEST_F(CorrectionEntryTest, OpensOnTheDesignsCurve) {
    Design.CorrectionPair[3] = 0.1F;
    Design.CorrectionPair[4] = 0.2F;
    OnPage([this] {
        EXPECT_EQ(Texts(1, 6), (Strings{"0.0", "0.0", "10. ", "20. ", "30. ", "30. "}));
        EXPECT_EQ(Texts(13, 14), (Strings{"100.0", "100.0"}));
        EXPECT_GT(Drawn().size(), 70U);
        const QPointF at = Plot().ToWidget(5500, 5000);
        EXPECT_LE((Handle(1).geometry().center() - at.toPoint()).manhattanLength(), 2);
    });
    EXPECT_FLOAT_EQ(Design.CorrectionSlope[1], 2);
}

TEST_F(CorrectionEntryTest, DraggedHandlesMoveTheCurve) {
    OnPage([this] {
        Drag(3, 0.5, 0.6);
        EXPECT_NEAR(Current(3), 0.5, 0.002);
        EXPECT_NEAR(Deflection(3), 0.6, 0.002);
        EXPECT_NEAR(NumericValue(TextIn(7)), 50, 0.2);
        EXPECT_NEAR(NumericValue(TextIn(8)), 60, 0.2);
        const QPointF at =
            Plot().ToWidget(5000 + 5000 * double{Current(3)}, 6000 - 5000 * double{Deflection(3)});
        EXPECT_LE((Handle(3).geometry().center() - at.toPoint()).manhattanLength(), 2);
        EXPECT_TRUE(said.empty());
    });
    EXPECT_NEAR(Deflection(3), 0.6, 0.002) << "there is no undo";
}

TEST_F(CorrectionEntryTest, EveryMiddleHandleCanBeDraggedAndTheEndsCannot) {
    OnPage([this] {
        for (int point = 1; point <= 5; ++point) {
            const auto before = double{Deflection(point)};
            Drag(point, double{Current(point)}, before + 0.03);
            EXPECT_NEAR(Deflection(point), before + 0.03, 0.002) << point;
        }
        for (const int point : {0, 6}) {
            Drag(point, 0.4, 0.4);
            EXPECT_EQ(Current(point), point == 0 ? 0 : 1);
        }
        EXPECT_TRUE(said.empty());
    });
}

TEST_F(CorrectionEntryTest, BadDropsAreDisallowedAndStay) {
    OnPage([this] {
        const std::string before = TextIn(11);
        Drag(5, 1.05, 0.9); // right of the plot's end
        EXPECT_EQ(said, Strings{kDisallowed});
        EXPECT_NEAR(Current(5), 1.05, 0.002) << "the bad value stays";
        EXPECT_EQ(TextIn(11), before) << "and the old box";
        const QPointF dropped = Plot().ToWidget(5000 + 5000 * 1.05, 6000 - 5000 * 0.9);
        EXPECT_LE((Handle(5).geometry().center() - dropped.toPoint()).manhattanLength(), 2)
            << "the handle stands where it was dropped";
        said.clear();
        Press("cmdRestore");
        EXPECT_TRUE(said.empty());
        Drag(1, 0.15, -0.05); // below the plot
        EXPECT_EQ(said, Strings{kDisallowed});
        EXPECT_LT(Deflection(1), 0);
        said.clear();
        Press("cmdRestore");
        Drag(2, 0.1, 0.3); // left of its neighbour
        EXPECT_EQ(said, Strings{kDisallowed});
        Strings calls = Drawn();
        std::erase_if(calls, [](const std::string& call) { return !call.ends_with(" 111199"); });
        EXPECT_TRUE(calls.empty()) << "no curve";
    });
}

TEST_F(CorrectionEntryTest, ReleasesElsewhereChangeNothing) {
    OnPage([this] {
        const QPoint home = Handle(2).pos();
        const Strings before = Drawn();
        QTest::mouseClick(&Handle(2), Qt::LeftButton); // pressed only
        DragTo(2, {-60, 40});                          // beside the surface
        DragTo(2, {40, -200});
        EXPECT_EQ(Handle(2).pos(), home);
        DragTo(2, Handle(4).geometry().center()); // on another control
        DragTo(2, The<QLabel>("Label60").geometry().center());
        EXPECT_EQ(Handle(2).pos(), home);
        EXPECT_EQ(Current(2), 0.3F);
        EXPECT_EQ(Drawn(), before);
        QTest::mousePress(&Handle(2), Qt::RightButton);
        QTest::mouseMove(&Handle(2), {80, 80});
        QTest::mouseRelease(&Handle(2), Qt::RightButton, {}, {80, 80});
        EXPECT_EQ(Current(2), 0.3F);
        EXPECT_TRUE(said.empty());
    });
}

TEST_F(CorrectionEntryTest, EscapeEndsADragAndNotThePage) {
    OnPage([this] {
        const Strings before = Drawn();
        CurveHandle& handle = Handle(3);
        const QPoint home = handle.pos();
        const QPoint grip = handle.rect().center();
        QTest::mousePress(&handle, Qt::LeftButton, {}, grip);
        QTest::mouseMove(&handle, grip + QPoint(20, -20));
        EXPECT_NE(handle.pos(), home);
        QTest::keyClick(handle.window()->focusWidget(), Qt::Key_Escape);
        EXPECT_TRUE(handle.window()->isVisible());
        EXPECT_EQ(handle.pos(), home);
        QTest::mouseMove(&handle, grip + QPoint(30, -30));
        EXPECT_EQ(handle.pos(), home) << "it is dragged no more";
        QTest::mouseRelease(&handle, Qt::LeftButton, {}, grip + QPoint(30, -30));
        EXPECT_EQ(handle.pos(), home);
        EXPECT_EQ(Deflection(3), 0.5F);
        EXPECT_EQ(Drawn(), before);
        Drag(3, 0.5, 0.6);
        EXPECT_NEAR(Deflection(3), 0.6, 0.01) << "the next drag is one again";
        QTest::keyClick(&handle, Qt::Key_Escape);
        EXPECT_FALSE(handle.window()->isVisible()) << "without a drag it leaves";
    });
}

TEST_F(CorrectionEntryTest, ArrowKeysAreSmallDrops) {
    OnPage([this] {
        Handle(3).setFocus();
        QTest::keyClick(&Handle(3), Qt::Key_Up);
        EXPECT_FLOAT_EQ(Deflection(3), 0.505F);
        EXPECT_FLOAT_EQ(Current(3), 0.5F);
        QTest::keyClick(&Handle(3), Qt::Key_Right);
        QTest::keyClick(&Handle(3), Qt::Key_Down);
        QTest::keyClick(&Handle(3), Qt::Key_Left);
        QTest::keyClick(&Handle(3), Qt::Key_Left);
        EXPECT_NEAR(Current(3), 0.495, 1e-6);
        EXPECT_NEAR(Deflection(3), 0.5, 1e-6);
        EXPECT_EQ(TextIn(7), "49.5 ");
    });
}

TEST_F(CorrectionEntryTest, EntriesAreApplied) {
    OnPage([this] {
        Enter(3, "10");
        Enter(4, "12.5 and more");
        Enter(1, "7"); // the ends are not read
        Enter(14, "50");
        Design.NumberOfCorrectionPoints = 3;
        Press("cmdAcceptXY");
        EXPECT_FLOAT_EQ(Current(1), 0.1F);
        EXPECT_FLOAT_EQ(Deflection(1), 0.125F);
        EXPECT_EQ(Current(0), 0);
        EXPECT_EQ(Deflection(6), 1);
        EXPECT_EQ(Design.NumberOfCorrectionPoints, 7);
        EXPECT_EQ(Texts(1, 4), (Strings{"0.0", "0.0", "10. ", "12.5 "}));
        EXPECT_EQ(TextIn(14), "100.0");
        EXPECT_TRUE(said.empty());
    });
}

TEST_F(CorrectionEntryTest, ReturnInABoxApplies) {
    OnPage([this] {
        for (const int box : {3, 12, 1, 14}) {
            Press("cmdRestore");
            Enter(4, "20");
            QTest::keyClick(&Text(box), Qt::Key_Return);
            EXPECT_TRUE(Text(box).window()->isVisible());
            EXPECT_FLOAT_EQ(Deflection(1), 0.2F) << box;
            EXPECT_EQ(TextIn(4), "20. ") << "redrawn";
        }
        The<QPushButton>("cmdRestore").setFocus(); // a button that had the focus takes no part
        Enter(4, "25");
        Text(4).setFocus();
        QTest::keyClick(&Text(4), Qt::Key_Enter, Qt::KeypadModifier);
        EXPECT_FLOAT_EQ(Deflection(1), 0.25F);
        EXPECT_TRUE(said.empty());
    });
}

TEST_F(CorrectionEntryTest, BadEntriesAreDisallowed) {
    OnPage([this] {
        Enter(3, "30");
        Enter(5, "20");
        Press("cmdAcceptXY");
        EXPECT_EQ(said, Strings{kDisallowed});
        EXPECT_EQ(TextIn(5), "20") << "what was typed stays to be corrected";
        said.clear();
        Press("cmdRestore");
        Enter(8, "half");
        Press("cmdAcceptXY");
        EXPECT_EQ(said, Strings{kDisallowed}) << "reads as 0";
        EXPECT_EQ(Deflection(3), 0);
    });
}

TEST_F(CorrectionEntryTest, EqualCurrentsAreToldAndThePictureStays) {
    OnPage([this] {
        const Strings before = Drawn();
        Enter(5, "15");
        Press("cmdAcceptXY");
        ASSERT_EQ(said.size(), 2U);
        EXPECT_EQ(said[0], "beep");
        EXPECT_NE(said[1].find("same current"), std::string::npos);
        EXPECT_EQ(Drawn(), before);
        EXPECT_FLOAT_EQ(Current(2), 0.15F) << "what was entered stays";
        said.clear();
        Press("cmdRestore");
        EXPECT_TRUE(said.empty());
    });
}

TEST_F(CorrectionEntryTest, RestoreShowsTheLinearCurve) {
    Design.CorrectionPair[3] = 0.05F;
    OnPage([this] {
        Press("cmdRestore");
        EXPECT_EQ(Texts(1, 14), (Strings{"0.0", "0.0", "15. ", "15. ", "30. ", "30. ", "50. ",
                                         "50. ", "70. ", "70. ", "85. ", "85. ", "100.0", "100.0"}))
            << "not the literal texts";
    });
    EXPECT_EQ(Design.CorrectionSlope[1], 1);
}

// Bad pairs stay in the design: the page that opens on them can be used to mend them.
TEST_F(CorrectionEntryTest, OpensOnABadCurveToo) {
    Design.CorrectionPair[7] = 0.1F;
    OnPage([this] {
        EXPECT_EQ(said, Strings{kDisallowed});
        EXPECT_EQ(TextIn(7), "10. ");
        EXPECT_EQ(TextIn(9), "70. ");
        EXPECT_TRUE(Plot().rect().contains(Handle(3).geometry()));
        said.clear();
        Enter(7, "50");
        Press("cmdAcceptXY");
        EXPECT_TRUE(said.empty());
        EXPECT_EQ(Current(3), 0.5F);
    });
}

TEST_F(CorrectionEntryTest, TinyValuesShowAsNoneAndStayUntilApplied) {
    Design.CorrectionPair[4] = 0.0005F;
    OnPage([this] {
        EXPECT_EQ(TextIn(4), "0.0");
        EXPECT_EQ(Deflection(1), 0.0005F);
        Press("cmdAcceptXY");
        EXPECT_EQ(Deflection(1), 0);
    });
}

TEST_F(CorrectionEntryTest, CurvesAreSavedAndReadBack) {
    OnPage([this] {
        Enter(4, "22.5");
        Press("cmdAcceptXY");
        Answer([this](QWidget& dialog) {
            EXPECT_EQ(dialog.windowTitle(), QLatin1String("Save correction data file"));
            TypeFile(Path("mine"))(dialog);
        });
        Press("cmdWrite");
        ASSERT_TRUE(Exists("mine.COR"));
        Press("cmdRestore");
        Answer([this](QWidget& dialog) {
            EXPECT_EQ(dialog.windowTitle(), QLatin1String("Read correction data file"));
            TypeFile(Path("mine.COR"))(dialog);
        });
        Press("cmdRead");
        EXPECT_FLOAT_EQ(Deflection(1), 0.225F);
        EXPECT_EQ(TextIn(4), "22.5 ");
        EXPECT_FLOAT_EQ(Design.CorrectionSlope[1], 1.5F);
        EXPECT_TRUE(said.empty());
    });
}

TEST_F(CorrectionEntryTest, CancelledReadLeavesALinearCurveBehindTheOldPicture) {
    Design.CorrectionPair[4] = 0.3F;
    OnPage([this] {
        const Strings before = Drawn();
        Answer(Cancel);
        Press("cmdRead");
        EXPECT_EQ(Deflection(1), 0.15F);
        EXPECT_FLOAT_EQ(Design.CorrectionSlope[1], 2) << "those of the old curve";
        EXPECT_EQ(Texts(1, 12), (Strings{"0", "0", "20", "20", "50", "50", "80", "80", "100", "100",
                                         "85. ", "85. "}));
        EXPECT_EQ(Drawn(), before);
    });
}

TEST_F(CorrectionEntryTest, CancelledSaveWritesNothing) {
    OnPage([this] {
        Answer(Cancel);
        Press("cmdWrite");
        EXPECT_TRUE(said.empty());
    });
}

TEST_F(CorrectionEntryTest, BadFilesAreReported) {
    const std::string noMeter = WriteFile("no.COR", "Ohm data\r\n");
    const std::string falling =
        WriteCurve("falling.COR", "0 0\r\n.3 .5\r\n.4 .4\r\n.5 .5\r\n.6 .6\r\n.7 .7\r\n1 1\r\n");
    const std::string early = WriteCurve("early.COR", "0 0\r\n.1 .2\r\n");
    OnPage([&] {
        for (const std::string& file : {noMeter, Path("missing.COR"), early}) {
            said.clear();
            Answer(TypeFile(file));
            Press("cmdRead");
            ASSERT_EQ(said.size(), 2U) << file;
            EXPECT_EQ(said[1], "failure: We did not read the linearity-correction file");
        }
        EXPECT_FLOAT_EQ(Deflection(1), 0.2F) << "points read so far are kept";
        EXPECT_EQ(TextIn(4), "20. ");
        said.clear();
        Answer(TypeFile(falling));
        Press("cmdRead");
        EXPECT_EQ(said, Strings{kDisallowed}) << "judged by the redraw";
        EXPECT_EQ(Texts(3, 6), (Strings{".3", ".5", ".4", ".4"}));
    });
}

TEST_F(CorrectionEntryTest, UnwritableFilesAreReported) {
    OnPage([this] {
        Host.openForOutput = [](const std::string&) -> std::unique_ptr<ByteSink> {
            throw FileFailure("no room");
        };
        Answer(TypeFile(Path("x.COR")));
        Press("cmdWrite");
        ASSERT_EQ(said.size(), 2U);
        EXPECT_EQ(said[1], "failure: We had a problem writing the curve data");
    });
}

TEST_F(CorrectionEntryTest, TabFollowsReadingOrder) {
    OnPage([this] {
        ExpectTabOrder(Form(),
                       "Text1 Text2 Text3 Text4 Text5 Text6 Text7 Text8 Text9 Text10 Text11 "
                       "Text12 Text13 Text14 cmdAcceptXY cmdRead cmdWrite cmdRestore cmdShowTable "
                       "cmdExitNo");
    });
}

// The curve moves the tics of the next preview and of the next print, and nothing else.
TEST_F(CorrectionEntryTest, CurveReachesPreviewAndPrintAlone) {
    const auto printed = [] {
        RecordingSurface printer;
        PrintPlate(Design, printer);
        return printer.CallsOf("Line");
    };
    const auto plotted = [this] {
        WriteHpgl(Design, Path("plot"), HpglMode::File);
        std::string stream = ReadFile("plot");
        return stream;
    };
    const auto setUp = [] {
        RecordingSurface surface;
        Design.CurrentScale = 1;
        Design.SpecialNrOfTicmarks[1] = 2;
        Design.TicDeflection[1][1] = 0.5F;
        DrawSetup(Design, surface, {Design.FontSize, Design.LabelSpacing}, Drawing);
        return surface.CallsOf("Line");
    };
    OpenPage("frmPreview");
    const Strings preview = CallsOf("picPlate");
    const Strings print = printed();
    const std::string plot = plotted();
    const Strings setup = setUp();
    EXPECT_GT(plot.size(), 1000U);
    EXPECT_GT(setup.size(), 100U);
    OnPage([this] { Drag(3, 0.5, 0.6); });
    OpenPage("frmPreview");
    EXPECT_NE(CallsOf("picPlate"), preview);
    EXPECT_NE(printed(), print);
    EXPECT_EQ(plotted(), plot);
    EXPECT_EQ(setUp(), setup);
}

class CorrectionShowTest : public CorrectionEntryTest {
protected:
    static std::string Block(QWidget& form, const char* name) {
        return form.findChild<QPlainTextEdit*>(QLatin1String(name))->toPlainText().toStdString();
    }

    void OnTable(const std::function<void(QWidget& form)>& look) {
        OnPage([&] {
            Answer([&](QWidget& form) {
                EXPECT_EQ(form.objectName(), QLatin1String("frmCorrectionShow"));
                EXPECT_TRUE(form.isModal());
                look(form);
                Click(On<QPushButton>(form, "cmdExit"));
            });
            Press("cmdShowTable");
            EXPECT_TRUE(AllAnswered());
        });
    }
};

TEST_F(CorrectionShowTest, ThreeBlocksShowTheCurve) {
    OnTable([this](QWidget& form) {
        EXPECT_EQ(form.windowTitle(), QLatin1String("Vernacle - Correction table"));
        ExpectShown(form, {{"Label5", "Movement correction table"}, {"cmdExit", "Close"}});
        const std::string left = Block(form, "txtRows0");
        EXPECT_TRUE(left.starts_with("Point:  Current:  Deflection:\n0       0.        0.\n"));
        EXPECT_TRUE(left.ends_with("\n25      50.       50. ")) << left;
        const std::string right = Block(form, "txtRows26");
        EXPECT_TRUE(right.starts_with("Point:  Current:  Deflection:\n26      52.       52. \n"));
        EXPECT_TRUE(right.ends_with("\n50      100.      100."));
        const std::string segments = Block(form, "txtSegments");
        EXPECT_TRUE(segments.starts_with("Segment:  Start %:  Stop %:  Slope:\n"));
        EXPECT_TRUE(segments.ends_with("\n6         85.       100.     1. "));
    });
    Design.DesignFileName = "/designs/mine.VRN";
    OnTable([](QWidget& form) {
        EXPECT_EQ(form.windowTitle(),
                  QLatin1String("Vernacle - Correction table - /designs/mine.VRN"));
    });
}

TEST_F(CorrectionShowTest, BlocksCanBeCopiedAndShowAllTheirLines) {
    OnTable([](QWidget& form) {
        for (QPlainTextEdit* block : form.findChildren<QPlainTextEdit*>()) {
            EXPECT_TRUE(block->isReadOnly());
            EXPECT_TRUE(block->textInteractionFlags() & Qt::TextSelectableByKeyboard);
            const int lines = block->document()->lineCount();
            EXPECT_GE(block->viewport()->height(), lines * block->fontMetrics().lineSpacing());
        }
        EXPECT_LE(form.height(), 700) << "in one glance on a small screen";
        EXPECT_LE(form.width(), 1000);
    });
}

TEST_F(CorrectionShowTest, FewerPointsGiveFewerSegmentsAndMoreGiveNoMore) {
    for (const auto& [points, segments] : {std::pair(4, 3), {10, 6}}) {
        Design.NumberOfCorrectionPoints = static_cast<std::int16_t>(points);
        OnTable([wanted = segments](QWidget& form) {
            const std::string shown = Block(form, "txtSegments");
            EXPECT_EQ(std::count(shown.begin(), shown.end(), '\n'), wanted) << "segments";
        });
    }
}

TEST_F(CorrectionShowTest, FailingCurveIsReportedOncePerRow) {
    OnPage([this] {
        Design.CorrectionPair[7] = Design.CorrectionPair[5];
        said.clear();
        Answer([](QWidget& form) {
            const std::string left = Block(form, "txtRows0");
            EXPECT_NE(left.find("\n20      40.       40. \n"), std::string::npos);
            form.close();
        });
        Press("cmdShowTable");
        const std::string report = "failure: An error was found in the Correction Table routine";
        EXPECT_EQ(std::count(said.begin(), said.end(), report), 51);
        EXPECT_EQ(std::count(said.begin(), said.end(), "beep"), 51);
        EXPECT_EQ(said.front(), "beep");
    });
}

} // namespace
} // namespace vernacle::test
