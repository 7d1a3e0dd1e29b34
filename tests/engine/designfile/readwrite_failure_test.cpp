// What ends the reading of a design file: the message with its stage, and defaults in every field.
#include "engine/designfile/readwrite.h"

#include "designfile.h"

namespace vernacle::test {
namespace {

class ReadFailureTest : public EngineTest {
protected:
    // The stage that the message quotes; 0 without a message.
    int StageOf(const std::string& text) {
        said.clear();
        ReadDesign(Design, WriteFile("plate.vrn", text));
        if (said.empty()) {
            return 0;
        }
        EXPECT_EQ(said.size(), 2U);
        EXPECT_EQ(said.front(), "beep");
        EXPECT_EQ(said.back().find(kNotRead), 0U) << said.back();
        return std::stoi(said.back().substr(kNotRead.size()));
    }
};

Texts Blocks(int count, const Texts& block) {
    Texts lines;
    for (int i = 0; i < count; ++i) {
        lines.insert(lines.end(), block.begin(), block.end());
    }
    return lines;
}

const Texts kTextBlock = {"Text:t", "Left: 0", "Bottom: 0", "Size: 1", "Color: 0"};
const Texts kHighlightBlock = {"Starting: 0", "Stopping: 0", "Ceiling: 0", "Length: 0", "Color: 0"};

Texts With(Texts block, std::size_t line, const std::string& text) {
    block[line] = text;
    return block;
}

DesignFile File() {
    return DesignFile().Set("Plate width: ", "61.5");
}

DesignFile WithText(std::size_t line, const std::string& text) {
    return File().Set("Texts: ", "1").AddBehind("Texts: ", With(kTextBlock, line, text));
}

DesignFile WithDeletion(const std::string& list, const std::string& entry) {
    return File().Set(list, "1").AddBehind(list, {entry});
}

using NamedFile = std::pair<const char*, DesignFile>;

// In the order of their places in a file.
std::vector<NamedFile> BrokenFiles() {
    std::vector<NamedFile> files = {
        {"a ninth scale", File()
                              .Set("Number of scales: ", "9")
                              .AddBehind("Linearity", Blocks(8, StandardScaleBlock("t")))},
        {"a special tic 361", File().Replace("Scale color: ", "Draw graphic",
                                             SpecialScaleBlock(Blocks(362, {" 0\\Y\\Y\\Y\\/"})))},
        {"a count of texts beyond its type", File().Set("Texts: ", "32768")},
        {"an eleventh text",
         File().Set("Texts: ", "11").AddBehind("Texts: ", Blocks(11, kTextBlock))},
        {"a text's left beyond its type", WithText(1, "Left: 1E39")},
        {"a text's bottom beyond its type", WithText(2, "Bottom: -1E39")},
        {"a text's size beyond its type", WithText(3, "Size: 9E999")},
        {"a text's colour by name", WithText(4, "Color: red")},
        {"a count of highlights beyond its type", File().Set("Highlights: ", "-32769")},
        {"an eleventh highlight",
         File().Set("Highlights: ", "11").AddBehind("Highlights: ", Blocks(11, kHighlightBlock))},
        {"a highlight's colour beyond its type",
         File()
             .Set("Highlights: ", "1")
             .AddBehind("Highlights: ", With(kHighlightBlock, 4, "Color: 2147483648"))},
        {"a background beyond its type", File().Set("Plate background: ", "-2147483649")},
    };
    for (const char* kind : {"tics", "labels"}) {
        for (const char* scale : {"1", "2", "3", "4"}) {
            const std::string list = std::string("Scale ") + scale + " - deleted " + kind + ": ";
            files.push_back({"a count of deletions beyond its type", File().Set(list, "99999")});
            files.push_back({"a deletion above 360", WithDeletion(list, "Deleted: 361")});
        }
    }
    files.push_back({"an aspect beyond its type", File().Set("Aspect ratio: ", "1E39")});
    files.push_back({"a count of points beyond its type",
                     File().Set("Number of correction points: ", "99999 \\ 7")});
    return files;
}

TEST_F(ReadFailureTest, StagesTellTheirPlaceInTheFile) {
    int before = 538; // the number of scales is the last line before all these
    for (const auto& [name, file] : BrokenFiles()) {
        const int stage = StageOf(file.Text());
        EXPECT_GT(stage, before) << name;
        EXPECT_LT(stage, 990) << name;
        before = stage;
    }
}

TEST_F(ReadFailureTest, NothingOfTheFileIsLeft) {
    for (const auto& [name, file] : BrokenFiles()) {
        SCOPED_TRACE(name);
        Design = DesignRecord{};
        ASSERT_NE(StageOf(file.Text()), 0);
        EXPECT_EQ(Design.PlateWidth, 75);
        EXPECT_EQ(Design.NumberOfScales, 1);
        EXPECT_EQ(Design.ScaleColor[1], 0);
        EXPECT_EQ(Design.ScaleTitle[1], "Default Scale 1");
        EXPECT_EQ(Design.TicLabelText[1][0], "");
        EXPECT_EQ(Design.NumberOfTexts, 0);
        EXPECT_EQ(Design.TextString[1], "");
        EXPECT_EQ(Design.NumberOfHighlights, 0);
        EXPECT_EQ(Design.PlateBackground, 0xFFFFFF);
        EXPECT_EQ(Design.AspectRatio, 0.75F);
    }
}

TEST_F(ReadFailureTest, TheLimitsThemselvesAreNoFailure) {
    const NamedFile rows[] = {
        {"a count of texts", File().Set("Texts: ", "-32768")},
        {"a count of highlights", File().Set("Highlights: ", "-32768")},
        {"a text's left", WithText(1, "Left: 3.4E38")},
        {"a text's colour", WithText(4, "Color: 2147483647")},
        {"a background", File().Set("Plate background: ", "-2147483648")},
        {"tic 360", WithDeletion("Scale 1 - deleted tics: ", "Deleted: 360")},
        {"label 0", WithDeletion("Scale 4 - deleted labels: ", "Deleted: 0")},
        {"a count of deletions, at a file's end",
         File().Set("Scale 4 - deleted labels: ", "32767").CutBehind("Scale 4 - deleted labels: ")},
        {"a count of texts, at a file's end", File().Set("Texts: ", "32767").CutBehind("Texts: ")},
        {"a count of scales, at a file's end",
         File().Set("Number of scales: ", "99999").CutBehind("Number of scales: ")},
    };
    for (const auto& [name, file] : rows) {
        EXPECT_EQ(StageOf(file.Text()), 0) << name;
        EXPECT_EQ(Design.PlateWidth, 61.5F) << name;
    }
}

TEST_F(ReadFailureTest, DeletionsOutsideTheTable) {
    for (const char* entry : {"Deleted: 361", "Deleted: -1", "Deleted: 99999", "Deleted: 9E99"}) {
        EXPECT_NE(StageOf(WithDeletion("Scale 1 - deleted tics: ", entry).Text()), 0) << entry;
        EXPECT_NE(StageOf(WithDeletion("Scale 4 - deleted labels: ", entry).Text()), 0) << entry;
    }
}

Texts Numbered(const std::string& label, int last) {
    Texts lines;
    for (int number = 0; number <= last; ++number) {
        lines.push_back(label + std::to_string(number));
    }
    return lines;
}

// A list of the design has 360 slots, the flags have 361 tics, and a file may say one twice.
TEST_F(ReadFailureTest, MoreDeletionsThanAListHoldsAreNoFailure) {
    const std::string tics = "Scale 1 - deleted tics: ";
    const std::string labels = "Scale 4 - deleted labels: ";
    DesignFile file = File();
    file.Set(tics, "361").AddBehind(tics, Numbered("Tic deleted: ", 360));
    file.Set(labels, "500").AddBehind(labels, Blocks(500, {"Label deleted: 7"}));
    EXPECT_EQ(StageOf(file.Text()), 0);
    EXPECT_EQ(Design.PlateWidth, 61.5F);
    for (int tic = 0; tic <= 360; ++tic) {
        EXPECT_EQ(Design.StandardTicYN[1][tic], "N") << tic;
        EXPECT_EQ(Design.StandardLabelYN[4][tic], tic == 7 ? "N" : "Y") << tic;
    }
}

TEST_F(ReadFailureTest, AllTicsDeletedAreAFailureOfTheWriter) {
    const std::string tics = "Scale 1 - deleted tics: ";
    DesignFile file = File();
    file.Set(tics, "361").AddBehind(tics, Numbered("Tic deleted: ", 360));
    ASSERT_EQ(StageOf(file.Text()), 0);
    Design.DesignFileName = Path("again.vrn");
    WriteDesign(Design);
    EXPECT_EQ(said, kNotWritten);
}

TEST_F(ReadFailureTest, ColoursOfTextsThatAreNoNumber) {
    for (const char* colour : {"Color:", "Color: ", "Color: 255x", "Color: 2,5", "Color: &HFF",
                               "Color: 2147483648", "Color: 1E400"}) {
        EXPECT_NE(StageOf(WithText(4, colour).Text()), 0) << colour;
    }
}

TEST_F(ReadFailureTest, ShorterFilesOfGarbageJustEnd) {
    const std::string all = [] {
        std::string bytes;
        for (int byte = 0; byte < 256; ++byte) {
            bytes += static_cast<char>(byte);
        }
        return bytes;
    }();
    for (const std::string& text : {std::string("\0", 1), std::string("\n\n\n"), all,
                                    std::string("\xEF\xBB\xBF"), std::string(5000, '*')}) {
        EXPECT_EQ(StageOf(text), 0);
        EXPECT_EQ(Design.PlateWidth, 75);
    }
}

TEST_F(ReadFailureTest, LongFilesOfOneLineEndOrFailButNeverMore) {
    for (const std::string line :
         {":1", "1", ":-1", "x", ":9E99", "\\", "1\\1\\1\\1\\1", "-5", " ", "\xFF", ":361"}) {
        const std::string text = Joined(Blocks(2000, {line}));
        const int stage = StageOf(text);
        EXPECT_TRUE(stage == 0 || (stage > 538 && stage < 990)) << line << " " << stage;
    }
}

TEST_F(ReadFailureTest, AFailureIsForgottenByTheNextFile) {
    EXPECT_NE(StageOf(WithText(4, "Color: red").Text()), 0);
    EXPECT_EQ(StageOf(File().Text()), 0);
    EXPECT_EQ(Design.PlateWidth, 61.5F);
}

} // namespace
} // namespace vernacle::test
