// The measure for the exporter's whole process: a bare program that paints recorded primitives to a
// PDF. "bare_pdf --record FILE" records those of the dense example's print; "bare_pdf FILE OUT"
// paints them.
#include <cstring>

#include <QBuffer>
#include <QFile>
#include <QGuiApplication>
#include <QPageLayout>
#include <QPdfWriter>

#include "designs.h"
#include "engine/output/print.h"
#include "primitives.h"
#include "surfaces/papersurface.h"

namespace {

using namespace vernacle;

void Record(const std::string& path) {
    bench::LoadDense();
    bench::PrimitiveDevice device(4961, 7016, 600);
    {
        PaperSurface paper(device, kPrinterDpi, kSheets[0]);
        PrintPlate(Design, paper);
    }
    bench::Save(device.primitives, path);
}

void PaintPdf(const std::string& path, const std::string& out) {
    const bench::Primitives primitives = bench::Load(path);
    QFile file(QString::fromStdString(out));
    file.open(QIODevice::WriteOnly);
    QPdfWriter writer(&file);
    QPageLayout layout(QPageSize(QPageSize::A4), QPageLayout::Portrait, QMarginsF());
    layout.setMode(QPageLayout::FullPageMode);
    writer.setPageLayout(layout);
    writer.setResolution(600);
    QPainter painter(&writer);
    bench::Replay(primitives, painter);
}

} // namespace

int main(int argc, char** argv) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QGuiApplication application(argc, argv);
    if (argc != 3) {
        return 2;
    }
    if (std::strcmp(argv[1], "--record") == 0) {
        Record(argv[2]);
    } else {
        PaintPdf(argv[1], argv[2]);
    }
    return 0;
}
