#include "export/outputs.h"

#include <algorithm>
#include <string_view>

#include <strings.h>

#include "engine/base/hostservices.h"
#include "engine/core/design.h"
#include "engine/core/service.h"
#include "engine/designfile/readwrite.h"
#include "engine/output/hpgl.h"
#include "engine/output/print.h"
#include "engine/render/drawing.h"
#include "engine/render/drawingsteps.h"
#include "engine/scale/scale.h"
#include "export/tictable.h"
#include "surfaces/documents.h"

namespace vernacle::exporter {

namespace {

void WriteBytes(const std::string& path, const std::string& bytes) {
    const auto sink = Host.openForOutput(path);
    sink->Write(bytes);
    sink->Close();
}

void WriteHpglFile(DesignRecord& design, const std::string& path, const Arguments& /*arguments*/) {
    WriteHpgl(design, path, HpglMode::File);
}

// The routine names the port itself; here the port is the output.
class PortIs {
public:
    explicit PortIs(const std::string& path) : open_(Host.openForOutput) {
        Host.openForOutput = [this, path](const std::string& /*port*/) { return open_(path); };
    }
    ~PortIs() { Host.openForOutput = open_; }
    PortIs(const PortIs&) = delete;
    PortIs& operator=(const PortIs&) = delete;

private:
    decltype(Host.openForOutput) open_;
};

void WritePclFile(DesignRecord& design, const std::string& path, const Arguments& /*arguments*/) {
    const PortIs port(path);
    WriteHpgl(design, "", HpglMode::PclPrinter);
}

// Prints; throws where the print has failed and been reported.
PrintOn Printing(DesignRecord& design) {
    return [&design](PrinterSurface& printer) {
        if (!PrintPlate(design, printer)) {
            throw RunTimeError("not printed");
        }
    };
}

void WritePdf(DesignRecord& design, const std::string& path, const Arguments& arguments) {
    WriteBytes(path,
               MakePdf(arguments.paper, design.DesignFileName, arguments.at, Printing(design)));
}

void WriteSvg(DesignRecord& design, const std::string& path, const Arguments& arguments) {
    WriteBytes(path, MakeSvg(arguments.paper, design.DesignFileName, Printing(design)));
}

void WritePng(DesignRecord& design, const std::string& path, const Arguments& arguments) {
    const int width = arguments.widthPixels;
    const int height = arguments.heightPixels;
    const DeviceMap map = Service.truePlate ? DeviceMap::OfPage(TrueArea(design), width, height)
                                            : DeviceMap::OfScreen(width, height);
    DrawingState state;
    const auto draw = [&](DrawingSurface& surface) {
        DrawPage(design, surface, PreviewTraits(), {design.FontSize, design.LabelSpacing}, state);
    };
    WriteBytes(path, MakePng(width, height, map, draw));
}

void WriteVrn(DesignRecord& design, const std::string& path, const Arguments& /*arguments*/) {
    design.DesignFileName = path;
    WriteDesign(design);
}

void WriteCsv(DesignRecord& design, const std::string& path, const Arguments& /*arguments*/) {
    WriteBytes(path, TicTableText(design));
}

constexpr OutputForm kForms[] = {
    {.ending = ".hpgl", .write = WriteHpglFile, .wantsTables = true},
    {.ending = ".plt", .write = WriteHpglFile, .wantsTables = true},
    {.ending = ".pcl", .write = WritePclFile, .wantsTables = true},
    {.ending = ".pdf", .write = WritePdf, .wantsTables = true, .wantsFonts = true},
    {.ending = ".svg", .write = WriteSvg, .wantsTables = true, .wantsFonts = true},
    {.ending = ".png", .write = WritePng, .wantsTables = true, .wantsFonts = true},
    {.ending = ".vrn", .write = WriteVrn, .isDesign = true},
    {.ending = ".csv", .write = WriteCsv, .wantsTables = true},
};

} // namespace

const OutputForm* FindForm(const std::string& path) {
    const std::size_t point = path.rfind('.');
    const std::string ending = point == path.npos ? "" : path.substr(point);
    const auto* form = std::find_if(std::begin(kForms), std::end(kForms), [&](const OutputForm& f) {
        return strcasecmp(f.ending, ending.c_str()) == 0;
    });
    return form == std::end(kForms) ? nullptr : form;
}

void MakeReady(DesignRecord& design) {
    NormalizeDesign(design);
    RaiseAspectRatio(design);
    HoldAspectRatio(design);
    ComputeTicDeflections(design);
    ComputeTicLabels(design);
}

} // namespace vernacle::exporter
