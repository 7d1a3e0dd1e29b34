// Each form is what its ending promises, made from the design as it was read, and the same in every
// run, time zone and country.
#include <cstdlib>
#include <filesystem>
#include <ostream>
#include <regex>

#include <QColor>
#include <QImage>
#include <QXmlStreamReader>

#include "export/exporttest.h"
#include "support/pixels.h"
#include "support/plategeometry.h"

namespace vernacle::test {

namespace {

namespace fs = std::filesystem;

// A comma in numbers, points in dates. Made once, where the environment brings none: it takes
// longer than all that is tried with it.
class GermanLocale {
public:
    GermanLocale() {
        const char* given = std::getenv("LOCPATH");
        if (given && fs::exists(fs::path(given) / kName)) {
            folder_ = given;
            return;
        }
        std::string pattern = (fs::temp_directory_path() / "vernacle-locale-XXXXXX").string();
        folder_ = made_ = mkdtemp(pattern.data());
        const ProcessResult result =
            RunProgram("localedef", {"-i", "de_DE", "-f", "UTF-8", (folder_ / kName).string()});
        EXPECT_EQ(result.status, 0) << result.err;
    }
    ~GermanLocale() {
        std::error_code ignored;
        fs::remove_all(made_, ignored);
    }
    GermanLocale(const GermanLocale&) = delete;
    GermanLocale& operator=(const GermanLocale&) = delete;

    std::string Folder() const { return folder_.string(); }

private:
    static constexpr const char* kName = "de_DE.UTF-8";
    fs::path folder_;
    fs::path made_; // empty if it was given
};

class OutputsTest : public ExportTest {
protected:
    // A design with everything that some output changes as it is made.
    std::string ChangingDesign() const {
        return EditedExample(
            "VOLTS-0-15",
            {{"Texts: ", "3\r\n"
                         "Text 1:one\r\nLeft to text:  2 \r\nBottom to text:  2 \r\n"
                         "Relative size:  1 \r\nColor: 0\r\n"
                         "Text 2:\r\nLeft to text:  2 \r\nBottom to text:  2 \r\n"
                         "Relative size:  1 \r\nColor: 0\r\n"
                         "Text 3:three\r\nLeft to text:  2 \r\nBottom to text:  2 \r\n"
                         "Relative size:  1 \r\nColor: 0"},
             {"Scale color: ", "255"},
             DeletedTics({1, 2}),
             DeletedLabels({5, 10}),
             {"Scale 1: ", "0"},
             {"Aspect ratio: ", "2"}});
    }

    static ProcessSetting Germany() {
        static const GermanLocale locale;
        ProcessSetting setting;
        setting.environment = {"LC_ALL=de_DE.UTF-8", "LOCPATH=" + locale.Folder()};
        EXPECT_EQ(RunProgram("locale", {"decimal_point"}, setting).out, ",\n");
        return setting;
    }

    std::string WriteAlone(const std::string& design, const std::string& name) const {
        ExportQuietly(design, {Path(name)});
        return ReadFile(name);
    }
};

std::string LineOf(const std::string& text, int number) {
    std::size_t start = 0;
    for (int line = 1; line < number; ++line) {
        start = text.find('\n', start) + 1;
    }
    return text.substr(start, text.find('\r', start) - start);
}

TEST_F(OutputsTest, AtGivesTheSameBytesEverywhere) {
    const std::string design = ChangingDesign();
    ProcessSetting plain;
    plain.environment = {"TZ=UTC0", "LC_ALL=C"};
    ProcessSetting germany = Germany();
    germany.environment.push_back("TZ=XYZ-11:30");
    const auto written = [&](const ProcessSetting& setting) {
        const Words outputs = EveryForm();
        EXPECT_EQ(Export(Joined({"--at", kAt, design}, outputs), setting).status, 0);
        std::vector<std::string> texts;
        for (const std::string& path : outputs) {
            texts.push_back(ReadText(path));
            fs::remove(path);
        }
        return texts;
    };
    const std::vector<std::string> first = written(plain);
    const std::vector<std::string> second = written(germany);
    for (std::size_t form = 0; form < first.size(); ++form) {
        SCOPED_TRACE(kEndings[form]);
        EXPECT_GT(first[form].size(), 100U);
        EXPECT_TRUE(second[form] == first[form]);
    }
}

TEST_F(OutputsTest, EveryFormIsMadeFromTheDesignAsItWasRead) {
    const std::string design = ChangingDesign();
    Words outputs;
    for (const char* ending : {".png", ".hpgl", ".vrn", ".csv", ".svg", ".pcl", ".pdf", ".png"}) {
        outputs.push_back(Path(std::string("before") + ending));
    }
    std::vector<std::string> alone;
    for (const char* ending : kEndings) {
        const std::string name = std::string("plate") + ending;
        alone.push_back(WriteAlone(design, name));
        fs::remove(Path(name));
        outputs.push_back(Path(name));
    }
    ExportQuietly(design, outputs);
    for (std::size_t form = 0; form < alone.size(); ++form) {
        const std::string name = std::string("plate") + kEndings[form];
        EXPECT_TRUE(ReadFile(name) == alone[form]) << name;
    }
}

TEST_F(OutputsTest, TheFixedDateStandsWhereThePresentOneWould) {
    const std::string design = Example("VOLTS-0-15");
    EXPECT_NE(WriteAlone(design, "a.hpgl").find(std::string("LBTime/date: ") + kAt + "\x03\r\n"),
              std::string::npos);
    EXPECT_EQ(LineOf(WriteAlone(design, "a.vrn"), 2), kAt);
    EXPECT_NE(WriteAlone(design, "a.pdf").find("/CreationDate (D:20260102030405"),
              std::string::npos);
    const ProcessResult text = RunProgram("pdftotext", {Path("a.pdf"), "-"});
    EXPECT_NE(text.out.find(kAt), std::string::npos) << text.out;
    EXPECT_NE(WriteAlone(design, "a.svg").find(kAt), std::string::npos);
}

TEST_F(OutputsTest, ThePresentDateStandsInTheCountrysForm) {
    const std::string design = Example("VOLTS-0-15");
    ASSERT_EQ(Export({design, Path("a.vrn"), Path("a.hpgl")}, Germany()).status, 0);
    const std::regex date("\\d\\d\\.\\d\\d\\.\\d{4} \\d\\d:\\d\\d:\\d\\d");
    EXPECT_TRUE(std::regex_match(LineOf(ReadFile("a.vrn"), 2), date));
    const std::string hpgl = ReadFile("a.hpgl"); // its footer stands at the end
    EXPECT_TRUE(std::regex_search(hpgl.substr(hpgl.find("LBTime/date: ")), date));
}

TEST_F(OutputsTest, ThePclIsTheStreamOfTheHpglInItsWrapper) {
    const std::string design = ChangingDesign();
    const std::string hpgl = WriteAlone(design, "a.hpgl");
    EXPECT_EQ(WriteAlone(design, "a.plt"), hpgl);
    EXPECT_EQ(WriteAlone(design, "a.pcl"), "\x1B"
                                           "E\r\n\x1B&l0O\r\n\x1B%1B\r\n" +
                                               hpgl +
                                               "\x1B%1A\r\n\x1B"
                                               "E\r\n");
    EXPECT_TRUE(hpgl.starts_with("IN\r\nSP1\r\nLT\r\n"));
    EXPECT_TRUE(hpgl.ends_with("PUSP0PG;\r\n"));
    EXPECT_NE(hpgl.find("LBFilename: " + design + "\x03\r\n"), std::string::npos);
    // Three texts with a gap count as two, the second of them empty.
    EXPECT_NE(hpgl.find("LBone\x03"), std::string::npos);
    EXPECT_EQ(hpgl.find("LBthree\x03"), std::string::npos);
}

// Three scales, of which one is special, with colours; two texts; deletions of four scales.
constexpr const char* kThreeScales = "2\r\n"
                                     "Scale color: 65280\r\n"
                                     "Scale left end (units): -5\r\n"
                                     "Scale length (units): 10\r\n"
                                     "Bottom to title: 20\r\n"
                                     "Bottom to scale ceiling: 25\r\n"
                                     "Scale title:SECOND\r\n"
                                     "Number of ticmarks: 500\r\n"
                                     "Major ticmarks every how often: 0\r\n"
                                     "Labels every how many ticmarks: 3\r\n"
                                     "Linearity exponent: .5\r\n"
                                     "Scale color: -255\r\n"
                                     "Bottom to scale title: 22.5\r\n"
                                     "Bottom to scale ceiling: 18\r\n"
                                     "Scale title:THIRD\r\n"
                                     "Number of ticmarks: 1\r\n"
                                     "* Deflection, Label Y/N, Tic Y/N, Major Y/N, Label:\r\n"
                                     " 0\\Y\\N\\Y\\low\r\n"
                                     " .75\\N\\Y\\N\\/\r\n"
                                     "Unlabelled ticmark at scale bottom Y/N: N\r\n"
                                     "Scale exponent: 2\r\n"
                                     "Fullscale multiplier: 10";

TEST_F(OutputsTest, TheVrnIsTheDesignAsItWasRead) {
    const std::string design = EditedExample(
        "VOLTS-0-15", {{"Number of scales: ", "3"},
                       {"Linearity exponent: ", kThreeScales},
                       {"Plate width: ", "250"},
                       {"Scale color: ", "16711680"},
                       {"Scale 1: ", "1\r\nScale 2: .5\r\nScale 3: 2"},
                       {"Print text Y/N:", ""},
                       {"Arc width: ", ".1"},
                       {"Aspect ratio: ", "1.9"},
                       {"Scale 4 - deleted labels: ", DeletedList("Label deleted: ", {9, 360})}});
    const std::string path = Path("again.VRN");
    ExportQuietly(design, {path});
    const std::string again = ReadFile("again.VRN");
    EXPECT_EQ(LineOf(again, 1), "Filename: " + path);
    EXPECT_EQ(LineOf(again, 2), kAt);
    EXPECT_TRUE(again.ends_with("\r\n\r\n"));
    for (const char* line : {"Plate width: 250",
                             "Number of scales: 3",
                             "Scale color: 16711680",
                             "Scale color: 65280",
                             "Scale color: -255",
                             "Scale title:SECOND",
                             "Scale title:THIRD",
                             "Number of ticmarks: 500",
                             "Major ticmarks every how often: 0",
                             "Linearity exponent: .5",
                             "Number of ticmarks: 1",
                             " 0\\Y\\N\\Y\\low",
                             " .75\\N\\Y\\N\\/",
                             "Scale exponent: 2",
                             "Fullscale multiplier: 10",
                             "Print text Y/N:",
                             "Arc width: .1",
                             "Aspect ratio: 1.9",
                             "Scale 2: .5",
                             "Scale 3: 2",
                             "Label deleted: 360"}) {
        EXPECT_NE(again.find(std::string("\r\n") + line + "\r\n"), std::string::npos) << line;
    }
}

TEST_F(OutputsTest, AVrnWrittenAnewAndAnewStaysTheSame) {
    const std::string design = ChangingDesign();
    for (const char* folder : {"first", "second", "third"}) {
        fs::create_directory(Path(folder));
    }
    const auto write = [this](const std::string& from, const char* folder) {
        ProcessSetting there;
        there.folder = Path(folder);
        EXPECT_EQ(Export({"--at", kAt, from, "plate.VRN"}, there).status, 0);
        return ReadFile(std::string(folder) + "/plate.VRN");
    };
    const std::string first = write(design, "first");
    EXPECT_GT(first.size(), 1000U);
    EXPECT_EQ(write(Path("first/plate.VRN"), "second"), first);
    EXPECT_EQ(write(Path("second/plate.VRN"), "third"), first);
}

TEST_F(OutputsTest, ADesignMayBeWrittenOverItself) {
    const std::string text = ReadText(Example("VOLTS-0-15"));
    const std::string design = WriteFile("plate.VRN", text);
    ExportQuietly(design, {design, Path("plate.csv")}, {"--force"});
    EXPECT_EQ(LineOf(ReadFile("plate.VRN"), 1), "Filename: " + design);
    EXPECT_EQ(CountLines(ReadFile("plate.VRN")), CountLines(text));
}

// Letters beyond the Western page keep their form through a design, and none is lost on paper.
TEST_F(OutputsTest, ATitleInGreekSurvives) {
    const std::string text =
        "\xEF\xBB\xBF" + ReadText(EditedExample("VOLTS-0-15", {{"Scale title:", "\xCE\xA9"}}));
    const std::string design = WriteFile("greek.VRN", text);
    ExportQuietly(design, {Path("again.vrn"), Path("a.pdf"), Path("a.hpgl")});
    EXPECT_TRUE(ReadFile("again.vrn")
                    .starts_with("\xEF\xBB\xBF"
                                 "Filename: "));
    EXPECT_NE(ReadFile("again.vrn").find("Scale title:\xCE\xA9\r\n"), std::string::npos);
    EXPECT_NE(RunProgram("pdftotext", {Path("a.pdf"), "-"}).out.find("\xCE\xA9"),
              std::string::npos);
    EXPECT_NE(ReadFile("a.hpgl").find("LB?\x03"), std::string::npos);
}

TEST_F(OutputsTest, ADesignsNameMayHoldMarkup) {
    const std::string design =
        WriteFile("R&D <1> \"a\".VRN",
                  ReadText(EditedExample("VOLTS-0-15", {{"Scale title:", "<V> & \"W\""}})));
    ExportQuietly(design, {Path("a.svg"), Path("a.pdf")});
    QXmlStreamReader reader(QByteArray::fromStdString(ReadFile("a.svg")));
    QString texts;
    while (!reader.atEnd()) {
        if (reader.readNext() == QXmlStreamReader::Characters) {
            texts += reader.text();
        }
    }
    EXPECT_FALSE(reader.hasError()) << reader.errorString().toStdString();
    EXPECT_TRUE(texts.contains(QString::fromStdString(design)));
    EXPECT_TRUE(texts.contains(QStringLiteral("<V> & \"W\"")));
    EXPECT_NE(RunProgram("pdftotext", {Path("a.pdf"), "-"}).out.find("<V> & \"W\""),
              std::string::npos);
}

class PictureTest : public OutputsTest {
protected:
    QImage Picture(const std::string& design, const Words& options = {}) const {
        ExportQuietly(design, {Path("plate.png")}, options);
        return QImage(QString::fromStdString(Path("plate.png")), "PNG");
    }
};

TEST_F(PictureTest, HasTheSizeOfTheScreen) {
    const std::string design = Example("VOLTS-0-15");
    EXPECT_EQ(Picture(design).size(), QSize(1600, 900));
    EXPECT_EQ(Picture(design, {"--size", "1280x1024"}).size(), QSize(1280, 1024));
    EXPECT_EQ(Picture(design, {"--size", "1024x768"}).size(), QSize(1024, 768));
}

// One that is larger than what is drawn for shows the same, magnified and in its own pixels.
TEST_F(PictureTest, LargePicturesMoveNoLabelOffItsTic) {
    const std::string design = Example("VOLTS-0-15");
    const QImage usual = Picture(design, {"--size", "1920x1080"});
    const QImage large = Picture(design, {"--size", "3840x2160"});
    ASSERT_EQ(large.size(), QSize(3840, 2160));
    const QImage reduced =
        large.scaled(usual.size(), Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
    EXPECT_EQ(InkApart(usual, reduced, 2), 0);
}

// The plate of 60 x 45 mm, drawn 0.75 as wide as it is high would ask.
TEST_F(PictureTest, ShowsThePlateInTheMiddle) {
    const std::string design = Example("VOLTS-0-15");
    const Plate plate = ReadPlate(ReadText(design));
    const QSize sizes[] = {{1600, 900}, {1200, 900}, {600, 1000}};
    for (const QSize size : sizes) {
        const QImage picture = Picture(
            design, {"--size", std::to_string(size.width()) + "x" + std::to_string(size.height())});
        const auto at = [&](double x, double y) { // of 12000 x 9000 units
            return picture.pixelColor(static_cast<int>(x * size.width() / 12000),
                                      static_cast<int>(y * size.height() / 9000));
        };
        const double k = 3200 / plate.width;
        const double left = 6000 - k * 0.75 * plate.width;
        const double right = 6000 + k * 0.75 * plate.width;
        const double top = 4300 - k * plate.height;
        const double bottom = 4300 + k * plate.height;
        EXPECT_EQ(at(left - 200, top), QColor(Qt::blue)); // trim marks
        EXPECT_EQ(at(right + 200, bottom), QColor(Qt::blue));
        EXPECT_EQ(at(left, top - 200), QColor(Qt::blue));
        EXPECT_EQ(at(right, bottom + 200), QColor(Qt::blue));
        EXPECT_LT(at(left - 32, 4300).lightness(), 144); // the frame, a smoothed line
        EXPECT_LT(at(right + 32, 4300).lightness(), 144);
        EXPECT_LT(at(6000, bottom + 32).lightness(), 144);
        EXPECT_EQ(at(left + 100, bottom - 100), QColor(Qt::white));
        EXPECT_EQ(at(100, 100), QColor(Qt::white));
        EXPECT_EQ(at(left + k * 0.75, bottom + 600), QColor(Qt::blue)); // ruler
    }
}

// The preview restores deleted labels, not deleted tics, and holds the stretch to its limit.
TEST_F(PictureTest, ShowsWhatThePreviewShows) {
    const auto drawn = [this](const std::string& design) {
        ExportQuietly(design, {Path("plate.png")}, {"--size", "800x450"});
        return ReadFile("plate.png");
    };
    const auto edited = [&](const Edits& edits) {
        return drawn(EditedExample("VOLTS-0-15", edits));
    };
    const std::string plain = drawn(Example("VOLTS-0-15"));
    EXPECT_TRUE(edited({}) == plain);
    EXPECT_TRUE(edited({DeletedLabels({0, 5})}) == plain);
    EXPECT_TRUE(edited({{"Scale color: ", "255"}}) == plain);
    EXPECT_TRUE(edited({{"Linearity exponent: ", "3"}}) == plain);
    EXPECT_FALSE(edited({DeletedTics({1})}) == plain);
    EXPECT_FALSE(edited({{"Print text Y/N:", "N"}}) == plain);
    const std::string widest = edited({{"Aspect ratio: ", "1.15"}});
    EXPECT_FALSE(widest == plain);
    EXPECT_TRUE(edited({{"Aspect ratio: ", "2"}}) == widest);
}

// What the preview changes in the design does not reach the sheet.
TEST_F(OutputsTest, DeletedLabelsStayDeletedOnPaper) {
    const std::string plain = WriteAlone(Example("VOLTS-0-15"), "plain.svg");
    const std::string design = EditedExample("VOLTS-0-15", {DeletedLabels({0})});
    ExportQuietly(design, {Path("a.png"), Path("a.svg"), Path("a.csv")});
    const auto count = [](const std::string& text, const std::string& part) {
        std::size_t found = 0;
        for (std::size_t at = text.find(part); at != text.npos; at = text.find(part, at + 1)) {
            ++found;
        }
        return found;
    };
    EXPECT_EQ(count(ReadFile("a.svg"), "<text "), count(plain, "<text ") - 1);
    EXPECT_NE(ReadFile("a.csv").find("\r\n1,0,Y,N,,0,"), std::string::npos);
}

} // namespace

} // namespace vernacle::test
