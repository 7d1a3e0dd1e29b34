// What is read and looks like a mistake: said with the file, the line and the reason, and a failure
// only where that is asked for.
#include <filesystem>

#include "export/exporttest.h"

namespace vernacle::test {

namespace {

class DoubtsTest : public ExportTest {
protected:
    // Both exports of a design: it is written, with just these words; or, strictly, it is not.
    void ExpectDoubts(const Words& words, const std::string& message) {
        const std::size_t before = CountFiles();
        Words full = words;
        full.push_back(Path("plate.csv"));
        const ProcessResult lenient = Export(full);
        EXPECT_EQ(lenient.status, 0) << lenient.err;
        EXPECT_EQ(lenient.err, message);
        EXPECT_EQ(CountFiles(), before + 1);
        std::filesystem::remove(Path("plate.csv"));
        full.insert(full.begin(), "--strict");
        const ProcessResult strict = Export(full);
        EXPECT_EQ(strict.status, 1) << strict.err;
        EXPECT_EQ(strict.err, message + "vernacle-export: nothing was written\n");
        EXPECT_EQ(CountFiles(), before);
    }

    static std::string Message(const std::string& file, std::size_t line, const char* reason) {
        return "vernacle-export: " + file + ":" + std::to_string(line) + ": " + reason + "\n";
    }
};

TEST_F(DoubtsTest, AValueThatIsNoNumberIsSaidWithItsLine) {
    struct Row {
        const char* label;
        const char* value;
        const char* reason;
    };
    const Row rows[] = {
        {"Plate width: ", "wide", "Plate width: no number"},
        {"Plate height: ", "", "Plate height: no number"},
        {"Number of ticmarks: ", "fifty", "Number of ticmarks: no number"},
        {"Texts: ", "none", "Texts: no number"},
        {"Scale 2 - deleted labels: ", "-", "Scale 2 - deleted labels: no number"},
        {"Aspect ratio: ", "square", "Aspect ratio: no number"},
        {"Bottom to bearing: ", "1.234567E-02",
         "Bottom to bearing: more than ten characters are ignored"},
        {"Scale 1 - deleted tics: ", "1\r\nTic deleted: third", "Tic deleted: no number"},
    };
    for (const Row& row : rows) {
        SCOPED_TRACE(row.reason);
        const std::string design = EditedExample("VOLTS-0-15", {{row.label, row.value}});
        const std::string text = ReadText(design);
        const std::string edited = std::string(row.label) + row.value;
        const std::string line = edited.substr(edited.rfind('\n') + 1); // the last one of them
        ExpectDoubts({design}, Message(design, NumberOfLine(text, line), row.reason));
    }
}

TEST_F(DoubtsTest, EveryDoubtIsSaid) {
    const std::string design = EditedExample(
        "VOLTS-0-15", {{"Plate width: ", "a"}, {"Plate height: ", "b"}, {"Arc width: ", "c"}});
    const std::string text = ReadText(design);
    ExpectDoubts({design},
                 Message(design, 3, "Plate width: no number") +
                     Message(design, 4, "Plate height: no number") +
                     Message(design, NumberOfLine(text, "Arc width: c"), "Arc width: no number"));
}

TEST_F(DoubtsTest, AFileThatIsNoDesignIsSaid) {
    const std::string letter = WriteFile("letter.VRN", "Dear Sir,\nyour meter\n");
    ExpectDoubts({letter}, Message(letter, 1, "no line of the head looks like one of a design"));
}

TEST_F(DoubtsTest, AFileThatIsNoCalibrationIsSaid) {
    const std::string design = WriteFile("a.VRN", ReadText(Example("VOLTS-0-15")));
    ExpectDoubts({"--calibration", design, design},
                 Message(design, 1, "does not begin as a calibration"));
    const std::string odd =
        WriteFile("odd.txt", "\"Vernacle calibration file\"\r\n\r\n#d#\r\n\r\none\r\n1\r\n");
    ExpectDoubts({"--calibration", odd, design}, Message(odd, 5, "no number"));
}

TEST_F(DoubtsTest, ExamplesAndWhatIsMadeOfThemAreBeyondDoubt) {
    const std::string examples = std::filesystem::path(Example("VOLTS-0-15")).parent_path();
    int count = 0;
    for (const auto& entry : std::filesystem::directory_iterator(examples)) {
        if (entry.path().extension() == ".VRN") {
            SCOPED_TRACE(entry.path());
            const std::string again = Path(std::to_string(++count) + ".vrn");
            ExportQuietly(entry.path(), {again}, {"--strict"});
            ExportQuietly(again, {Path("plate.csv")}, {"--strict"});
        }
    }
    EXPECT_GT(count, 3);
    const std::string shipped =
        std::filesystem::path(examples).parent_path() / "packaging/Calibrate.txt";
    ExportQuietly(Example("VOLTS-0-15"), {Path("plate.csv")},
                  {"--strict", "--calibration", shipped});
}

TEST_F(DoubtsTest, AFileThatEndsEarlyIsBeyondDoubt) {
    const std::string text = ReadText(Example("VOLTS-0-15"));
    for (const char* end : {"Plate wid", "Number of scales: ", "Draw graphic Y/N:", "Aspect"}) {
        const std::string cut = WriteFile("cut.VRN", text.substr(0, text.find(end)));
        ExportQuietly(cut, {Path("plate.csv")}, {"--strict"});
    }
}

// What a shell makes of *.VRN plate.pdf.
TEST_F(DoubtsTest, ASecondDesignIsNotWrittenOver) {
    const std::string text = ReadText(Example("VOLTS-0-15"));
    const std::string first = WriteFile("a.VRN", text);
    const std::string second = WriteFile("b.vrn", "another");
    const std::string third = WriteFile("c.Vrn", "a third");
    const ProcessResult refused = Export({first, second, third, Path("plate.csv")});
    EXPECT_EQ(refused.status, 2);
    EXPECT_EQ(refused.err, "vernacle-export: \"" + second + "\" exists; --force writes over it\n");
    EXPECT_EQ(ReadFile("b.vrn"), "another");
    EXPECT_EQ(ReadFile("c.Vrn"), "a third");
    EXPECT_EQ(CountFiles(), 3U);
    std::filesystem::create_symlink(third, Path("link.vrn"));
    EXPECT_EQ(Export({first, Path("link.vrn")}).status, 2);
    EXPECT_EQ(Export({first, first}).status, 2);
    EXPECT_EQ(ReadFile("a.VRN"), text);
    EXPECT_EQ(Export({first, Path("new.vrn"), Path("plate.csv")}).status, 0);
    EXPECT_EQ(Export({"--force", first, second}).status, 0);
    EXPECT_NE(ReadFile("b.vrn"), "another");
}

struct LeftOut {
    Edits edits;
    const char* words;
};

// A note is no doubt: with --strict, too, everything is written.
TEST_F(DoubtsTest, WhatAnEverydayPlateLeavesOutIsSaid) {
    const LeftOut rows[] = {
        {{{"Plate style: ", "1"}}, "the quadrant style"},
        {{{"Font style: ", "Courier"}}, "the font"},
        {{{"Scale color: ", "255"}}, "colours of scales"},
        {{{"Linearity exponent: ", "2"}}, "exponents of scales"},
        {{{"Draw graphic Y/N:", "Y"}}, "the graphic"},
        {{{"Plate background: ", "255"}}, "the plate's background"},
        {{{"Pair #2: ", ".15 \\ .2"}}, "the movement's correction"},
        {{{"Texts: ", "1\r\nText 1:a\r\nLeft to text: 1\r\nBottom to text: 1\r\n"
                      "Relative size: 1\r\nColor: 0"}},
         "free texts"},
        {{{"Highlights: ", "1\r\nStarting percentage: 10\r\nStopping percentage: 20\r\n"
                           "Ceiling: 30\r\nLength: 2\r\nColor: 255"}},
         "highlights"},
        {{{"Plate style: ", "1"}, {"Scale color: ", "255"}},
         "colours of scales, the quadrant style"},
    };
    for (const auto& [edits, words] : rows) {
        SCOPED_TRACE(words);
        const std::string design = EditedExample("VOLTS-0-15", edits);
        const ProcessResult everyday = Export({"--strict", design, Path("p.csv")});
        EXPECT_EQ(everyday.status, 0);
        EXPECT_EQ(everyday.err,
                  "vernacle-export: " + design + ": left out without --workshop: " + words + "\n");
        const ProcessResult workshop = Export({"--strict", "--workshop", design, Path("p.csv")});
        EXPECT_EQ(workshop.status, 0);
        EXPECT_EQ(workshop.err, "");
    }
    EXPECT_EQ(Export({Example("VOLTS-0-15"), Path("p.csv")}).err, "");
}

} // namespace

} // namespace vernacle::test
