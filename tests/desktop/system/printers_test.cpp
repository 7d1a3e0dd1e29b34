// Printing by the real printer dialog, its PDF files read back: sizes, sheets, failures, a cancel.
#include "desktop/system/printers.h"

#include <algorithm>
#include <array>

#include <QAbstractButton>
#include <QApplication>
#include <QComboBox>
#include <QDialogButtonBox>
#include <QElapsedTimer>
#include <QLineEdit>
#include <QMessageBox>
#include <QPrintDialog>
#include <QPrinter>
#include <QPushButton>
#include <QRadioButton>
#include <QTimer>

#include <sys/stat.h>

#include "desktop/system/programfiles.h"
#include "engine/base/runtimeerror.h"
#include "engine/core/design.h"
#include "engine/designfile/readwrite.h"
#include "engine/output/calibrate.h"
#include "engine/output/print.h"
#include "engine/scale/scale.h"
#include "support/enginetest.h"
#include "support/filelimit.h"
#include "support/pdfreader.h"
#include "support/process.h"
#include "support/sourcetree.h"

namespace vernacle::test {

namespace {

constexpr const char* kSquareFailure = "failure: We had a problem driving the printer.";
constexpr int kPatienceMs = 10000;
constexpr double kToleranceMm = 0.05;

// Answers modal windows, each of them once it is up, in the order of the answers.
class User {
public:
    using Answer = std::function<void(QWidget& window)>;

    explicit User(std::vector<Answer> answers) : answers_(std::move(answers)) {
        patience_.start();
        LookLater();
    }
    ~User() { EXPECT_EQ(next_, answers_.size()) << "windows that did not come"; }
    User(const User&) = delete;
    User& operator=(const User&) = delete;

private:
    void LookLater() {
        QTimer::singleShot(10, &context_, [this] { Look(); });
    }

    // A window stays until its answer has closed it, but may open others, which come first.
    void Look() {
        QWidget* window = QApplication::activeModalWidget();
        if (patience_.hasExpired(kPatienceMs) && window) {
            ADD_FAILURE() << "a window that no answer closes: "
                          << window->metaObject()->className();
            window->close();
        }
        LookLater();
        if (window && window->isVisible() && next_ < answers_.size()) {
            answers_[next_++](*window);
        }
    }

    std::vector<Answer> answers_;
    std::size_t next_ = 0;
    QElapsedTimer patience_;
    QObject context_;
};

void Press(QWidget& window, QDialogButtonBox::StandardButton which) {
    const auto* box = window.findChild<QDialogButtonBox*>();
    ASSERT_NE(box, nullptr) << window.metaObject()->className();
    ASSERT_NE(box->button(which), nullptr);
    box->button(which)->click();
}

template <typename Widget>
Widget& Find(QWidget& window, const char* name) {
    auto* widget = window.findChild<Widget*>(QString::fromLatin1(name));
    if (!widget) {
        throw std::runtime_error(std::string("no ") + name);
    }
    return *widget;
}

User::Answer PrintTo(const std::string& file) {
    return [file](QWidget& window) {
        EXPECT_EQ(window.objectName().toStdString(), "PrintDialog");
        Find<QLineEdit>(window, "filename").setText(QString::fromStdString(file));
        Press(window, QDialogButtonBox::Ok);
    };
}

User::Answer AnswerBox(QMessageBox::StandardButton which) {
    return [which](QWidget& window) {
        auto* box = qobject_cast<QMessageBox*>(&window);
        ASSERT_NE(box, nullptr) << window.metaObject()->className();
        ASSERT_NE(box->button(which), nullptr) << box->text().toStdString();
        box->button(which)->click();
    };
}

void Cancel(QWidget& window) {
    Press(window, QDialogButtonBox::Cancel);
}

void OpenProperties(QWidget& window) {
    Find<QAbstractButton>(window, "properties").click();
}

// In the window that the properties open.
User::Answer ChoosePaper(QPageSize::PageSizeId size, QPageLayout::Orientation orientation) {
    return [size, orientation](QWidget& window) {
        auto& sizes = Find<QComboBox>(window, "pageSizeCombo");
        const int index = sizes.findText(QPageSize::name(size), Qt::MatchStartsWith);
        ASSERT_GE(index, 0);
        sizes.setCurrentIndex(index);
        const bool landscape = orientation == QPageLayout::Landscape;
        Find<QRadioButton>(window, landscape ? "landscape" : "portrait").click();
        Press(window, QDialogButtonBox::Ok);
    };
}

void PrintSquare(PrinterSurface& printer) {
    PrintTestSquare(Design, printer);
}

class PrintersTest : public EngineTest {
protected:
    PrintersTest() { Design.CalibrationX = Design.CalibrationY = 1; }

    // With those answers of the user.
    static void Print(const std::vector<User::Answer>& answers,
                      const PrintOn& print = PrintSquare) {
        const User user(answers);
        AskForPrinterAndPrint(nullptr, print);
    }

    static void ReadExample() {
        SetOpeningValues(Design);
        ReadDesign(Design, SourcePath("examples/VOLTS-0-15.VRN"));
        Design.CalibrationX = Design.CalibrationY = 1;
        ComputeTicDeflections(Design);
        ComputeTicLabels(Design);
    }

    // The one stroke of the test square's file.
    Shape SquareOf(const std::string& name) const {
        const SvgPicture page = ReadPdf(Path(name));
        EXPECT_EQ(page.shapes.size(), 1U);
        return page.shapes.empty() ? Shape{} : page.shapes[0];
    }

    void ExpectSquare(const std::string& name, MmPoint centre) const {
        const Shape square = SquareOf(name);
        EXPECT_NEAR(square.WidthOfBox(), 100, kToleranceMm);
        EXPECT_NEAR(square.HeightOfBox(), 100, kToleranceMm);
        EXPECT_NEAR(square.Centre().x, centre.x, kToleranceMm);
        EXPECT_NEAR(square.Centre().y, centre.y, kToleranceMm);
    }

    std::string About(const std::string& name) const {
        return RunProgram("pdfinfo", {Path(name)}).out;
    }
};

constexpr double kUnitMm = 1 / 56.578;

struct Paper {
    const char* name = "";
    QPageSize::PageSizeId size = QPageSize::A4;
    QPageLayout::Orientation orientation = QPageLayout::Portrait;
    double widthMm = 0;
    double heightMm = 0;
    MmPoint plateCentre; // from the sheet's corner
};

// The logical area is centred where it fits, the plate itself where it does not.
constexpr Paper kPapers[] = {
    {"A4",
     QPageSize::A4,
     QPageLayout::Portrait,
     210,
     297,
     {105 + 250 * kUnitMm, 148.5 - 3600 * kUnitMm}},
    {"Letter",
     QPageSize::Letter,
     QPageLayout::Portrait,
     215.9,
     279.4,
     {107.95 + 250 * kUnitMm, 139.7 - 3600 * kUnitMm}},
    {"A4 across", QPageSize::A4, QPageLayout::Landscape, 297, 210, {148.5 + 250 * kUnitMm, 105}},
    {"Letter across",
     QPageSize::Letter,
     QPageLayout::Landscape,
     279.4,
     215.9,
     {139.7 + 250 * kUnitMm, 107.95}},
    {"A3",
     QPageSize::A3,
     QPageLayout::Portrait,
     297,
     420,
     {148.5 + 250 * kUnitMm, 210 - 3600 * kUnitMm}},
    {"A5", QPageSize::A5, QPageLayout::Portrait, 148, 210, {74, 105}},
};

TEST_F(PrintersTest, TheTestSquareIsTrueToSizeOnEveryPaperOfTheDialog) {
    for (const Paper& paper : kPapers) {
        SCOPED_TRACE(paper.name);
        Print({OpenProperties, ChoosePaper(paper.size, paper.orientation),
               PrintTo(Path(std::string(paper.name) + ".pdf"))});
        const std::string file = std::string(paper.name) + ".pdf";
        ASSERT_TRUE(Exists(file));
        const SvgPicture page = ReadPdf(Path(file));
        EXPECT_NEAR(page.widthMm, paper.widthMm, 0.4) << "the box counts whole points";
        EXPECT_NEAR(page.heightMm, paper.heightMm, 0.4);
        ExpectSquare(file, paper.plateCentre);
    }
    EXPECT_TRUE(said.empty());
}

// The same on what is no PDF file of ours: the toolkit's own job.
TEST_F(PrintersTest, TheToolkitsJobIsTrueToSizeAtAnyResolution) {
    for (const int dpi : {300, 600, 1200}) {
        for (const Paper& paper : kPapers) {
            SCOPED_TRACE(paper.name);
            QPrinter printer(QPrinter::HighResolution);
            printer.setResolution(dpi);
            printer.setOutputFileName(QString::fromStdString(Path("job.pdf")));
            printer.setPageLayout(QPageLayout(QPageSize(paper.size), paper.orientation,
                                              QMarginsF(20, 30, 5, 7), QPageLayout::Millimeter));
            PrintAsJob(printer, PrintSquare);
            ExpectSquare("job.pdf", paper.plateCentre);
        }
    }
    EXPECT_TRUE(said.empty());
}

TEST_F(PrintersTest, TheChosenPaperIsProposedAgain) {
    Print({OpenProperties, ChoosePaper(QPageSize::Letter, QPageLayout::Landscape),
           PrintTo(Path("first.pdf"))});
    Print({PrintTo(Path("second.pdf"))});
    EXPECT_NEAR(ReadPdf(Path("second.pdf")).widthMm, 279.4, 0.4);
    ExpectSquare("second.pdf", kPapers[3].plateCentre);
    Print({OpenProperties, ChoosePaper(QPageSize::A4, QPageLayout::Portrait),
           PrintTo(Path("third.pdf"))});
}

TEST_F(PrintersTest, ACancelPrintsNothing) {
    Print(
        {[this](QWidget& window) {
            Find<QLineEdit>(window, "filename").setText(QString::fromStdString(Path("plate.pdf")));
            Cancel(window);
        }},
        [](PrinterSurface&) { ADD_FAILURE() << "printed"; });
    EXPECT_FALSE(Exists("plate.pdf"));
    EXPECT_TRUE(said.empty());
}

TEST_F(PrintersTest, TheDialogIsModalToItsPage) {
    QWidget page;
    page.show();
    const User user({[&page](QWidget& window) {
        EXPECT_EQ(window.parentWidget(), &page);
        EXPECT_TRUE(window.isModal());
        Cancel(window);
    }});
    AskForPrinterAndPrint(&page, PrintSquare);
}

TEST_F(PrintersTest, ADocumentHasTheNameOfItsDesign) {
    const std::string documents = SystemFolders().documents;
    const std::array<std::string, 3> rows[] = {
        {"", "Vernacle", documents + "/Vernacle.pdf"},
        {"Calibrate.txt", "Calibrate.txt", documents + "/Calibrate.pdf"},
        {Path("VOLTS 0.5 µ.VRN"), "VOLTS 0.5 µ.VRN", documents + "/VOLTS 0.5 µ.pdf"},
        {Path("gone/A.VRN"), "A.VRN", documents + "/A.pdf"},
        {Path("A\x1B\nB.VRN"), "AB.VRN", documents + "/AB.pdf"},
    };
    for (const auto& [file, title, proposal] : rows) {
        Design.DesignFileName = file;
        std::filesystem::remove(Path("plate.pdf"));
        Print({[this, &proposal = proposal](QWidget& window) {
            EXPECT_EQ(Find<QLineEdit>(window, "filename").text().toStdString(), proposal);
            PrintTo(Path("plate.pdf"))(window);
        }});
        const std::string about = About("plate.pdf");
        EXPECT_NE(about.find(" " + title + "\n"), std::string::npos) << about;
    }
}

TEST_F(PrintersTest, APrintThatNeverStartsAPageLeavesNoFile) {
    Print({PrintTo(Path("plate.pdf"))}, [](PrinterSurface&) {});
    EXPECT_FALSE(Exists("plate.pdf"));
}

TEST_F(PrintersTest, AFailureOfTheProgramComesThrough) {
    const User user({PrintTo(Path("plate.pdf"))});
    EXPECT_THROW(AskForPrinterAndPrint(nullptr,
                                       [](PrinterSurface& printer) {
                                           printer.StartSheet();
                                           ThrowSubscriptOutOfRange();
                                       }),
                 RunTimeError);
    EXPECT_FALSE(Exists("plate.pdf"));
}

// By this a printer's calibration is known to be wanted.
TEST_F(PrintersTest, AFileIsNoDevice) {
    std::vector<bool> devices;
    const PrintOn ask = [&](PrinterSurface& surface) { devices.push_back(surface.IsDevice()); };
    Print({PrintTo(Path("plate.pdf"))}, ask);
    QPrinter printer(QPrinter::HighResolution);
    PrintAsJob(printer, ask);
    printer.setOutputFileName(QString::fromStdString(Path("job.pdf")));
    PrintAsJob(printer, ask);
    EXPECT_EQ(devices, (std::vector<bool>{false, true, false}));
}

// The toolkit would take the disk for written.
TEST_F(PrintersTest, AFullDiskIsReported) {
    Print({PrintTo("/dev/full"), AnswerBox(QMessageBox::Yes)});
    EXPECT_EQ(said, (std::vector<std::string>{"beep", kSquareFailure}));
}

TEST_F(PrintersTest, ADiskThatFillsUpIsReported) {
    Print({PrintTo(Path("plate.pdf"))}, [](PrinterSurface& printer) {
        const FileSizeLimit limit(200);
        PrintTestSquare(Design, printer);
    });
    EXPECT_EQ(said, (std::vector<std::string>{"beep", kSquareFailure}));
}

TEST_F(PrintersTest, APlateOnAFullDiskIsReportedOnce) {
    ReadExample();
    Print({PrintTo("/dev/full"), AnswerBox(QMessageBox::Yes)},
          [](PrinterSurface& printer) { EXPECT_FALSE(PrintPlate(Design, printer)); });
    ASSERT_EQ(said.size(), 1U);
    EXPECT_EQ(said[0].rfind(kSquareFailure, 0), 0U) << said[0];
}

// The dialog itself turns such a folder away; one that goes while it is up is found out later.
TEST_F(PrintersTest, AFolderThatCannotBeWrittenToIsTurnedAway) {
    Print({PrintTo(Path("gone/plate.pdf")), AnswerBox(QMessageBox::Ok), Cancel},
          [](PrinterSurface&) { ADD_FAILURE() << "printed"; });
    EXPECT_TRUE(said.empty());
}

TEST_F(PrintersTest, AFolderThatIsGoneIsReported) {
    ASSERT_EQ(mkdir(Path("going").c_str(), 0700), 0);
    Print({PrintTo(Path("going/plate.pdf"))}, [this](PrinterSurface& printer) {
        std::filesystem::remove_all(Path("going"));
        PrintTestSquare(Design, printer);
    });
    EXPECT_EQ(said, (std::vector<std::string>{"beep", kSquareFailure}));
}

TEST_F(PrintersTest, APrinterThatDoesNotStartIsReported) {
    QPrinter printer(QPrinter::HighResolution);
    printer.setOutputFileName(QString::fromStdString(Path("gone/job.pdf")));
    PrintAsJob(printer, PrintSquare);
    EXPECT_EQ(said, (std::vector<std::string>{"beep", kSquareFailure}));
}

TEST_F(PrintersTest, APlateIsPrintedWhole) {
    ReadExample();
    Print({PrintTo(Path("plate.pdf"))},
          [](PrinterSurface& printer) { EXPECT_TRUE(PrintPlate(Design, printer)); });
    EXPECT_TRUE(said.empty());
    EXPECT_NE(About("plate.pdf").find("Pages:           1"), std::string::npos);
    EXPECT_NE(ReadFile("plate.pdf").find("/PrintScaling /None"), std::string::npos);
    std::vector<std::string> words;
    for (const Word& word : ReadPdfWords(Path("plate.pdf"))) {
        words.push_back(word.text);
    }
    EXPECT_NE(std::find(words.begin(), words.end(), "MILLIMETERS"), words.end());
    EXPECT_NE(std::find(words.begin(), words.end(), "Harrowgate"), words.end());
}

} // namespace

} // namespace vernacle::test
