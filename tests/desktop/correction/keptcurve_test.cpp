// The correction pages where the curve outlives the session: it is the design's, whatever it is.
#include <QPlainTextEdit>

#include "desktop/correction/curvehandle.h"
#include "desktop/correction/curvepicture.h"
#include "engine/core/service.h"
#include "support/formtest.h"

namespace vernacle::test {
namespace {

constexpr const char* kStraight = "Not 0.1 % above the point before: ";
constexpr unsigned kMarked = 0xFFFFDDDD;

class KeptCurveTest : public FormTest {
protected:
    KeptCurveTest() {
        StoreService(Program::Workshop);
        ResetDesign(Design);
    }

    void OnPage(const std::function<void()>& use) {
        OpenPage("frmPlate");
        Answer([&](QWidget& form) {
            form_ = &form;
            Settle();
            use();
            form.close();
        });
        Click("cmdLinearity");
        EXPECT_TRUE(AllAnswered());
    }

    EntryBox& Text(int number) const {
        return On<EntryBox>(*form_, "Text" + std::to_string(number));
    }
    void Enter(int number, const std::string& text) const {
        Text(number).selectAll();
        Text(number).insert(QString::fromStdString(text));
    }
    void Apply(std::initializer_list<std::pair<int, const char*>> entries) const {
        for (const auto& [number, text] : entries) {
            Enter(number, text);
        }
        Press("cmdAcceptXY");
    }
    void Press(const std::string& button) const { Click(On<QPushButton>(*form_, button)); }
    void Read(const std::string& points) {
        Answer(TypeFile(WriteFile("mine.COR", "Meter data\r\nto-day\r\n7\r\nX Y\r\n" + points)));
        Press("cmdRead");
    }
    std::string Advice() const { return On<QLabel>(*form_, "Label10").text().toStdString(); }
    bool IsMarked(int number) const {
        return Text(number).palette().color(QPalette::Base).rgba() == kMarked;
    }
    std::string MarkedRows() const {
        std::string rows;
        for (int point = 0; point < kCurvePoints; ++point) {
            EXPECT_EQ(IsMarked(2 * point + 1), IsMarked(2 * point + 2)) << point;
            rows += IsMarked(2 * point + 1) ? std::to_string(point) : "";
        }
        return rows;
    }
    // The curve's own lines.
    std::size_t LinesOfCurve() const {
        Strings calls = Recorded(On<PictureBox>(*form_, "picCurve")).calls;
        return std::erase_if(calls, [](const auto& call) { return call.ends_with(" 111199"); });
    }

    QWidget* form_ = nullptr;
};

// The curve of a movement with a stop at either end, in numbers that percent do not hold.
void GiveCurve() {
    constexpr float kPairs[] = {0.02F,      0.01F, 0.15F, 0.2000001F, 0.3F, 0.3F,  0.51234567F,
                                0.5000001F, 0.7F,  0.7F,  0.85F,      0.9F, 0.98F, 0.9999999F};
    for (int number = 1; number <= 2 * kCurvePoints; ++number) {
        Design.CorrectionPair[number] = kPairs[number - 1];
    }
}

std::vector<float> Pairs() {
    std::vector<float> pairs;
    for (int number = 1; number <= 2 * kCurvePoints; ++number) {
        pairs.push_back(Design.CorrectionPair[number]);
    }
    return pairs;
}

TEST_F(KeptCurveTest, OpensAndAppliesTheCurveAsItStands) {
    GiveCurve();
    const std::vector<float> pairs = Pairs();
    OnPage([&] {
        EXPECT_EQ(Text(1).Text(), "2");
        EXPECT_EQ(Text(7).Text(), "51.23457");
        EXPECT_TRUE(Text(1).isReadOnly() && Text(14).isReadOnly()) << "the ends are not entered";
        Press("cmdAcceptXY");
        EXPECT_EQ(Pairs(), pairs) << "to the last bit";
        Apply({{5, "31,25"}});
        EXPECT_EQ(Design.CorrectionPair[5], 0.3125F);
        EXPECT_EQ(Design.CorrectionPair[4], pairs[3]);
        EXPECT_EQ(LinesOfCurve(), 6U);
        EXPECT_TRUE(said.empty());
    });
}

TEST_F(KeptCurveTest, ShowsPercentAfterARead) {
    OnPage([this] {
        Read("0 0\r\n.1 .2\r\n.3 .4\r\n.5 .6\r\n.6 .7\r\n.7 .8\r\n1 1\r\n");
        EXPECT_EQ(Text(4).Text() + " " + Text(7).Text(), "20 50");
        Read("0 0\r\n.3 .5\r\n.4 .4\r\n.5 .5\r\n.6 .6\r\n.7 .7\r\n1 1\r\n");
        EXPECT_EQ(Text(4).Text() + " " + Text(6).Text(), "50 40") << "of a curve that falls, too";
        EXPECT_EQ(MarkedRows(), "2");
    });
}

TEST_F(KeptCurveTest, WhatIsNotReadChangesNothing) {
    GiveCurve();
    const std::vector<float> pairs = Pairs();
    OnPage([&] {
        Answer(Cancel);
        Press("cmdRead");
        EXPECT_EQ(Pairs(), pairs) << "cancelled";
        EXPECT_TRUE(said.empty());
        Read("0 0\r\n.1 .2\r\n");
        EXPECT_EQ(Pairs(), pairs) << "ends too early";
        EXPECT_EQ(said.back(), "failure: We did not read the linearity-correction file");
        EXPECT_EQ(Text(7).Text(), "51.23457");
    });
}

TEST_F(KeptCurveTest, ACurveThatDoesNotRiseIsRefusedOnceMarkedAndKept) {
    OnPage([this] {
        Apply({{5, "15"}, {8, "30.05"}}); // an equal current, and half of the least rise
        ASSERT_EQ(said.size(), 1U);
        EXPECT_EQ(said[0].rfind("information: The curve has to rise", 0), 0U) << said[0];
        EXPECT_EQ(MarkedRows(), "23");
        EXPECT_EQ(Advice(), kStraight + std::string("2, 3. A straight line is drawn instead."));
        EXPECT_EQ(Text(5).Text() + " " + Text(8).Text(), "15 30.05");
        EXPECT_EQ(Design.CorrectionPair[8], 0.3005F);
        EXPECT_EQ(LinesOfCurve(), 0U);
        Apply({{8, "30.1"}}); // a little better
        EXPECT_EQ(MarkedRows(), "2");
        EXPECT_EQ(said.size(), 1U) << "told once";
        Apply({{5, "15.1"}});
        EXPECT_EQ(MarkedRows(), "");
        EXPECT_EQ(LinesOfCurve(), 6U);
        Apply({{8, "30"}});
        EXPECT_EQ(said.size(), 2U) << "another one";
        Design.CorrectionPair[9] = Design.CorrectionPair[7];
    });
    said.clear();
    OnPage([this] {
        EXPECT_EQ(MarkedRows(), "34");
        EXPECT_TRUE(said.empty()) << "nobody has entered it here";
        Press("cmdRestore");
        EXPECT_EQ(MarkedRows(), "");
        EXPECT_TRUE(said.empty());
    });
}

TEST_F(KeptCurveTest, TheTableFollowsTheWholeCurveAndNeedsNoRise) {
    GiveCurve();
    Design.CorrectionPair[9] = Design.CorrectionPair[7];
    OnPage([this] {
        Answer([](QWidget& form) { form.close(); });
        Press("cmdShowTable");
        EXPECT_TRUE(said.empty()) << "no slope between equal currents";
        Press("cmdRestore");
        Design.CorrectionPair[13] = 0.95F; // the curve goes on behind its last point
        Design.CorrectionPair[14] = 0.9F;
        Answer([](QWidget& form) {
            const auto* rows = form.findChild<QPlainTextEdit*>(QStringLiteral("txtRows26"));
            const std::string text = rows->toPlainText().toStdString();
            EXPECT_NE(text.find("\n48      96.       90.5 \n"), std::string::npos) << text;
            form.close();
        });
        Press("cmdShowTable");
    });
}

// Wherever a file has put a point, the page opens.
TEST_F(KeptCurveTest, OpensOnPointsFarAway) {
    Design.CorrectionPair[5] = 3e38F;
    Design.CorrectionPair[6] = -1e30F;
    OnPage([this] {
        EXPECT_EQ(MarkedRows(), "23");
        EXPECT_EQ(Text(6).Text(), "-1E+30");
    });
}

} // namespace
} // namespace vernacle::test
