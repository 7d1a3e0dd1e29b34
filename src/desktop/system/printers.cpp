#include "desktop/system/printers.h"

#include <optional>

#include <QFileInfo>
#include <QPrintDialog>
#include <QPrinter>

#include "desktop/system/joboptions.h"
#include "desktop/system/programfiles.h"
#include "desktop/system/spooler.h"
#include "engine/base/bytesink.h"
#include "engine/core/design.h"

namespace vernacle {

namespace {

// Whether what the toolkit's dialog shows as printers are queues of a spooler with programs.
#if defined(Q_OS_UNIX) && !defined(Q_OS_DARWIN)
constexpr bool kHasSpooler = true;
#else
constexpr bool kHasSpooler = false;
#endif

// What of a choice holds for the next print of this run.
struct Choice {
    QString printerName;
    QPrinter::OutputFormat format;
    QPageLayout layout;
};

std::optional<Choice>& LastChoice() {
    static std::optional<Choice> choice;
    return choice;
}

// The dialog's own proposal is, on most desktops, a folder alone, which it then turns away. The
// file's name is there for whoever changes over to a file; to have one is not to choose it.
void ProposeFile(QPrinter& printer, const QString& document) {
    const QPrinter::OutputFormat format = printer.outputFormat();
    if (kHasSpooler || format == QPrinter::PdfFormat) {
        const std::string name = QFileInfo(document).completeBaseName().toStdString();
        printer.setOutputFileName(QString::fromStdString(ProposedFile(name + ".pdf")));
        printer.setOutputFormat(format);
    }
}

// Behind the file's name: each change of the format brings the default printer back.
void Propose(QPrinter& printer, const Choice& choice) {
    printer.setOutputFormat(choice.format);
    if (choice.format == QPrinter::NativeFormat) {
        printer.setPrinterName(choice.printerName);
    }
    printer.setPageLayout(choice.layout);
}

Sheet SheetOf(const QPrinter& printer) {
    const QSizeF size = printer.pageLayout().fullRect(QPageLayout::Millimeter).size();
    return {"", size.width(), size.height()};
}

bool IsFile(const QPrinter& printer) {
    return !printer.outputFileName().isEmpty();
}

// A sheet whose calibration is the printer's, unless it ends in a file.
class SheetSurface : public PaperSurface {
public:
    SheetSurface(const QPrinter& printer, QPaintDevice& device, double coordinatesPerInch)
        : PaperSurface(device, coordinatesPerInch, SheetOf(printer)), isDevice_(!IsFile(printer)) {}

    bool IsDevice() const override { return isDevice_; }

private:
    bool isDevice_;
};

// A document of our own, made whole in memory, and what becomes of it then. The toolkit would not
// tell of a disk that is full or of a job that is refused.
class DocumentSurface : private PdfInMemory, public SheetSurface {
public:
    using Deliver = std::function<void(const std::string& bytes)>;

    DocumentSurface(const QPrinter& printer, Deliver deliver)
        : PdfInMemory(SheetOf(printer), printer.docName().toStdString()),
          SheetSurface(printer, writer, kPrinterDpi),
          deliver_(std::move(deliver)) {}

    void EndDoc() override {
        SheetSurface::EndDoc();
        deliver_(Bytes());
    }

private:
    Deliver deliver_;
};

void WriteTo(const std::string& path, const std::string& bytes) {
    const auto sink = OpenFileSink(path);
    sink->Write(bytes);
    sink->Close();
}

bool IsPdfFile(const QPrinter& printer) {
    return printer.outputFormat() == QPrinter::PdfFormat && IsFile(printer);
}

bool IsQueue(const QPrinter& printer) {
    return kHasSpooler && printer.outputFormat() == QPrinter::NativeFormat && !IsFile(printer) &&
           !printer.printerName().isEmpty() && !FindProgram(SpoolJob().program).empty();
}

} // namespace

QString DocumentName() {
    const QFileInfo file(QString::fromStdString(Design.DesignFileName));
    const QString name = ShownText(file.fileName().toStdString());
    return name.isEmpty() ? QStringLiteral("Vernacle") : name;
}

Sheet ProposedSheet() {
    QPrinter printer(QPrinter::HighResolution);
    if (LastChoice()) {
        Propose(printer, *LastChoice());
    }
    return SheetOf(printer);
}

// Nothing that moves the page's margins is set before the dialog: on a queue that would keep the
// paper chosen in it from being taken.
void AskForPrinterAndPrint(QWidget* parent, const PrintOn& print, const QString& document) {
    QPrinter printer(QPrinter::HighResolution);
    printer.setResolution(static_cast<int>(kPrinterDpi));
    printer.setDocName(document);
    ProposeFile(printer, document);
    if (LastChoice()) {
        Propose(printer, *LastChoice());
    }
    QPrintDialog dialog(&printer, parent);
    dialog.setObjectName(QStringLiteral("PrintDialog"));
    dialog.setOptions(QAbstractPrintDialog::PrintToFile | QAbstractPrintDialog::PrintShowPageSize);
    if (dialog.exec() != QDialog::Accepted) {
        return;
    }
    LastChoice() = {printer.printerName(), printer.outputFormat(), printer.pageLayout()};
    PrintOnPrinter(printer, print);
}

void PrintOnPrinter(QPrinter& printer, const PrintOn& print) {
    if (IsPdfFile(printer)) {
        DocumentSurface file(printer, [&printer](const std::string& bytes) {
            WriteTo(printer.outputFileName().toStdString(), bytes);
        });
        print(file);
        return;
    }
    if (IsQueue(printer)) {
        DocumentSurface job(printer, [&printer](const std::string& bytes) {
            SendJob({.arguments = JobArguments(printer)}, bytes);
        });
        print(job);
        return;
    }
    PrintAsJob(printer, print);
}

void PrintAsJob(QPrinter& printer, const PrintOn& print) {
    PrintUnscaled(printer);
    printer.setFullPage(true); // the sheet's corner is the origin; a new choice may have moved it
    SheetSurface paper(printer, printer, printer.resolution());
    print(paper);
}

} // namespace vernacle
