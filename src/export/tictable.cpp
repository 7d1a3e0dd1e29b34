#include "export/tictable.h"

#include <array>
#include <charconv>
#include <map>
#include <vector>

#include "engine/base/text.h"
#include "engine/core/design.h"
#include "engine/core/service.h"
#include "engine/correction/curve.h"
#include "engine/output/print.h"
#include "engine/render/stages.h"

namespace vernacle::exporter {

namespace {

constexpr const char* kHeader = "scale,tic,major,labelled,label,deflection,corrected,pointer_deg,"
                                "x_mm,y_mm,end_x_mm,end_y_mm\r\n";
constexpr int kDigits = 9; // significant

// As few digits as tell the float from its neighbours.
std::string Number(float value) {
    std::array<char, 32> buffer{};
    const auto [end, error] = std::to_chars(buffer.data(), buffer.data() + buffer.size(), value);
    return {buffer.data(), end};
}

std::string Number(double value) {
    std::array<char, 32> buffer{};
    const auto [end, error] = std::to_chars(buffer.data(), buffer.data() + buffer.size(), value,
                                            std::chars_format::general, kDigits);
    return {buffer.data(), end};
}

std::string Quoted(const std::string& text) {
    if (text.find_first_of(",\"\r\n") == text.npos) {
        return text;
    }
    std::string quoted = "\"";
    for (const char c : text) {
        quoted += c == '"' ? "\"\"" : std::string(1, c);
    }
    return quoted + "\"";
}

DrawingTraits TableTraits() {
    return Service.truePlate ? TruePlateTraits(TrueMedium::Paper) : PrintTraits();
}

float Corrected(const DesignRecord& design, float deflection) {
    return Service.truePlate ? static_cast<float>(ContinuedDeflection(design, double{deflection}))
                             : CorrectDeflection(design, deflection);
}

// A true plate leaves out what its pointer cannot meet.
bool IsMet(const DesignRecord& design, const PlateFrame& frame, const ArcPlace& place, int scale) {
    return !Service.truePlate ||
           MeetsArc(frame, place.pointerAngleRad,
                    ScaleRadius(frame, double{design.BottomToScaleCeiling[scale]}));
}

using Labels = std::map<int, std::string>; // by tic

Labels PrintedLabels(const DesignRecord& design, int scale) {
    Labels labels;
    if (design.PrintText == "Y") {
        WalkLabels(design, scale, TableTraits().labelFlags, [&labels](const TicLabel& label) {
            const std::string text = PrintedLabel(label);
            if (!Trimmed(text).empty()) {
                labels[label.number] = text;
            }
        });
    }
    return labels;
}

std::string Row(const DesignRecord& design, const Tic& tic, const Labels& labels) {
    const PlateFrame frame = MillimetreFrame(design);
    const ArcPlace place =
        PlaceTic(design, frame, TableTraits().correction, tic.scale, tic.deflection);
    if (!IsMet(design, frame, place, tic.scale)) {
        return "";
    }
    const SurfacePoint end = AlongPointer(frame, place.point, place.pointerAngleRad,
                                          TicLength(design, tic), DirectionOf(tic.scale));
    const float corrected = Corrected(design, tic.deflection);
    const auto label = labels.find(tic.number);
    const bool labelled = label != labels.end();
    std::string row = std::to_string(tic.scale) + "," + std::to_string(tic.number);
    row += tic.major ? ",Y" : ",N";
    row += labelled ? ",Y," + Quoted(label->second) : ",N,";
    row += "," + Number(tic.deflection) + "," + Number(corrected);
    for (const double value : {place.pointerAngleRad * frame.degreesPerRadian, place.point.x,
                               -place.point.y, end.x, -end.y}) {
        row += "," + Number(value);
    }
    return row + "\r\n";
}

} // namespace

std::string TicTableText(const DesignRecord& design) {
    std::string table = kHeader;
    for (int scale = 1; scale <= design.NumberOfScales; ++scale) {
        if (NumberOf(design.PrintTicsAndArcs[scale]) != 0) {
            continue;
        }
        const Labels labels = PrintedLabels(design, scale);
        WalkTics(design, scale, TableTraits().ticFlags,
                 [&](const Tic& tic) { table += Row(design, tic, labels); });
    }
    return table;
}

} // namespace vernacle::exporter
