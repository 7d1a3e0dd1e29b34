#include "export/outputs.h"

#include <algorithm>
#include <string_view>

#include <strings.h>

#include "engine/base/hostservices.h"
#include "engine/core/design.h"
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

void WriteHpglFile(const std::string& path, const Arguments& /*arguments*/) {
    WriteHpgl(Design, path, HpglMode::File);
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

void WritePclFile(const std::string& path, const Arguments& /*arguments*/) {
    const PortIs port(path);
    WriteHpgl(Design, "", HpglMode::PclPrinter);
}

// Prints; throws where the print has failed and been reported.
void Print(PrinterSurface& printer) {
    if (!PrintPlate(Design, printer)) {
        throw RunTimeError("not printed");
    }
}

void WritePdf(const std::string& path, const Arguments& arguments) {
    WriteBytes(path, MakePdf(arguments.paper, Design.DesignFileName, arguments.at, Print));
}

void WriteSvg(const std::string& path, const Arguments& arguments) {
    WriteBytes(path, MakeSvg(arguments.paper, Design.DesignFileName, Print));
}

void WritePng(const std::string& path, const Arguments& arguments) {
    WriteBytes(path,
               MakePng(arguments.widthPixels, arguments.heightPixels, [](DrawingSurface& surface) {
                   DrawPage(Design, surface, PreviewTraits(),
                            {Design.FontSize, Design.LabelSpacing}, Drawing);
               }));
}

void WriteVrn(const std::string& path, const Arguments& /*arguments*/) {
    Design.DesignFileName = path;
    WriteDesign(Design);
}

void WriteCsv(const std::string& path, const Arguments& /*arguments*/) {
    WriteBytes(path, TicTableText(Design));
}

constexpr OutputForm kForms[] = {
    {".hpgl", WriteHpglFile, true, false},  //
    {".plt", WriteHpglFile, true, false},   //
    {".pcl", WritePclFile, true, false},    //
    {".pdf", WritePdf, true, true},         //
    {".svg", WriteSvg, true, true},         //
    {".png", WritePng, true, true},         //
    {".vrn", WriteVrn, false, false, true}, //
    {".csv", WriteCsv, true, false},        //
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

void MakeReady() {
    NormalizeDesign(Design);
    RaiseAspectRatio(Design);
    HoldAspectRatio(Design);
    ComputeTicDeflections(Design);
    ComputeTicLabels(Design);
}

} // namespace vernacle::exporter
