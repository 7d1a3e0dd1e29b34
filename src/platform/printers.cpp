#include "platform/printers.h"

#include <optional>

#include <QDir>
#include <QFileInfo>
#include <QPrintDialog>
#include <QPrinter>

#include "core/bytesink.h"
#include "core/design.h"
#include "platform/programfiles.h"
#include "render/page.h"

namespace vernacle {

namespace {

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

void Propose(QPrinter& printer, const Choice& choice) {
    printer.setPrinterName(choice.printerName);
    printer.setOutputFormat(choice.format);
    printer.setPageLayout(choice.layout);
}

QFileInfo DesignFile() {
    return QFileInfo(QString::fromStdString(Design.DesignFileName));
}

// The name alone: what the toolkit does with it is no path.
QString DocumentName() {
    const QString name = DesignFile().fileName();
    return name.isEmpty() ? QStringLiteral("Vernacle") : name;
}

// Beside the design, or among the documents for a design without a file. The dialog's own proposal
// is, on most desktops, a folder alone, which it then turns away.
QString ProposedPdf() {
    const QFileInfo design = DesignFile();
    const QString folder = design.isAbsolute() && design.dir().exists()
                               ? design.path()
                               : QString::fromStdString(SystemFolders().documents);
    const QString name = QFileInfo(DocumentName()).completeBaseName();
    return QDir(folder).filePath(name + QStringLiteral(".pdf"));
}

// The length for which centring the logical area stands the plate where it belongs: where the area
// is longer than the sheet, as on a landscape one, the plate's own middle stands in the sheet's.
double PlacingLength(double sheetMm, double areaUnits, double centreUnits) {
    constexpr double kUnitsPerMm = 2 * kPageUnitsPerHalfMm;
    return sheetMm * kUnitsPerMm >= areaUnits
               ? sheetMm
               : sheetMm + (areaUnits - 2 * centreUnits) / kUnitsPerMm;
}

Sheet PlacingSheet(const Sheet& sheet) {
    return {sheet.name, PlacingLength(sheet.widthMm, kPageWidth, kPageCentre.x),
            PlacingLength(sheet.heightMm, kPageHeight, kPageCentre.y)};
}

Sheet SheetOf(const QPrinter& printer) {
    const QSizeF size = printer.pageLayout().fullRect(QPageLayout::Millimeter).size();
    return {"", size.width(), size.height()};
}

// A file that the toolkit wrote itself would be cut short on a full disk without a word.
class PdfFileSurface : private PdfInMemory, public PaperSurface {
public:
    PdfFileSurface(std::string path, const Sheet& sheet, const std::string& title)
        : PdfInMemory(sheet, title),
          PaperSurface(writer, kPrinterDpi, PlacingSheet(sheet)),
          path_(std::move(path)) {}

    void EndDoc() override {
        PaperSurface::EndDoc();
        const auto sink = OpenFileSink(path_);
        sink->Write(Bytes());
        sink->Close();
    }

private:
    std::string path_;
};

} // namespace

void AskForPrinterAndPrint(QWidget* parent, const PrintOn& print) {
    QPrinter printer(QPrinter::HighResolution);
    printer.setResolution(static_cast<int>(kPrinterDpi));
    printer.setFullPage(true);
    printer.setDocName(DocumentName());
    if (LastChoice()) {
        Propose(printer, *LastChoice());
    }
    if (printer.outputFormat() == QPrinter::PdfFormat) {
        printer.setOutputFileName(ProposedPdf());
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
    if (printer.outputFormat() != QPrinter::PdfFormat || printer.outputFileName().isEmpty()) {
        PrintAsJob(printer, print);
        return;
    }
    PdfFileSurface file(printer.outputFileName().toStdString(), SheetOf(printer),
                        printer.docName().toStdString());
    print(file);
}

void PrintAsJob(QPrinter& printer, const PrintOn& print) {
    printer.setFullPage(true); // the sheet's corner is the origin; a new choice may have moved it
    PaperSurface paper(printer, printer.resolution(), PlacingSheet(SheetOf(printer)));
    print(paper);
}

} // namespace vernacle
