#include "engine/core/recordfields.h"

#include <algorithm>

namespace vernacle {

namespace {

using D = DesignRecord;

constexpr FieldRole kKept = FieldRole::Kept;
constexpr FieldRole kComputed = FieldRole::Computed;
constexpr FieldRole kSession = FieldRole::Session;

struct Extent {
    int indices = 0;
    int lastOuter = 0;
    int lastInner = 0;
};

template <typename T>
struct ExtentOf {
    static constexpr Extent kExtent{};
};
template <typename T, int Last>
struct ExtentOf<Table<T, Last>> {
    static constexpr Extent kExtent{1, Last, 0};
};
template <typename T, int LastOuter, int LastInner>
struct ExtentOf<Table<Table<T, LastInner>, LastOuter>> {
    static constexpr Extent kExtent{2, LastOuter, LastInner};
};
template <typename T, int LastScale, int LastTic>
struct ExtentOf<TicTable<T, LastScale, LastTic>> {
    static constexpr Extent kExtent{2, LastScale, LastTic};
};

template <auto Member>
constexpr RecordField Row(const char* name, FieldRole role) {
    using Field = std::remove_reference_t<decltype(std::declval<D&>().*Member)>;
    constexpr Extent kExtent = ExtentOf<Field>::kExtent;
    return {name, role, kExtent.indices, kExtent.lastOuter, kExtent.lastInner, At<Member>};
}

// clang-format off
constexpr RecordField kFields[] = {
    Row<&D::DesignFileName>("DesignFileName", kSession),
    Row<&D::PlateWidth>("PlateWidth", kKept),
    Row<&D::PlateHeight>("PlateHeight", kKept),
    Row<&D::BottomToBearing>("BottomToBearing", kKept),
    Row<&D::BottomToHoles>("BottomToHoles", kKept),
    Row<&D::HoleSeparation>("HoleSeparation", kKept),
    Row<&D::PointerDeflection>("PointerDeflection", kKept),
    Row<&D::MinorTicLength>("MinorTicLength", kKept),
    Row<&D::MinorTicWidth>("MinorTicWidth", kKept),
    Row<&D::MajorTicLength>("MajorTicLength", kKept),
    Row<&D::MajorTicWidth>("MajorTicWidth", kKept),
    Row<&D::FontSize>("FontSize", kKept),
    Row<&D::ActualVirtualOffset>("ActualVirtualOffset", kKept),
    Row<&D::PlateStyle>("PlateStyle", kKept),
    Row<&D::DrawArcs>("DrawArcs", kKept),
    Row<&D::LabelRotation>("LabelRotation", kKept),
    Row<&D::PrintText>("PrintText", kKept),
    Row<&D::LabelSpacing>("LabelSpacing", kKept),
    Row<&D::FontName>("FontName", kKept),
    Row<&D::NumberOfScales>("NumberOfScales", kKept),
    Row<&D::DrawGraphic>("DrawGraphic", kKept),
    Row<&D::GraphicFileName>("GraphicFileName", kKept),
    Row<&D::LeftToGraphic>("LeftToGraphic", kKept),
    Row<&D::BottomToGraphic>("BottomToGraphic", kKept),
    Row<&D::GraphicWidth>("GraphicWidth", kKept),
    Row<&D::GraphicHeight>("GraphicHeight", kKept),
    Row<&D::ArcWidth>("ArcWidth", kKept),
    Row<&D::MessageLevel>("MessageLevel", kKept),
    Row<&D::NumberOfTexts>("NumberOfTexts", kKept),
    Row<&D::NumberOfHighlights>("NumberOfHighlights", kKept),
    Row<&D::PlateBackground>("PlateBackground", kKept),
    Row<&D::AspectRatio>("AspectRatio", kKept),
    Row<&D::NumberOfCorrectionPoints>("NumberOfCorrectionPoints", kKept),
    Row<&D::DrawHighlights>("DrawHighlights", kKept),
    Row<&D::PlateOutlineCircular>("PlateOutlineCircular", kKept),
    Row<&D::LeftToBearing>("LeftToBearing", kKept),
    Row<&D::PenWidth>("PenWidth", kKept),
    Row<&D::ScaleColor>("ScaleColor", kKept),
    Row<&D::ScaleLeftEnd>("ScaleLeftEnd", kKept),
    Row<&D::ScaleLengthUnits>("ScaleLengthUnits", kKept),
    Row<&D::BottomToTitle>("BottomToTitle", kKept),
    Row<&D::BottomToScaleCeiling>("BottomToScaleCeiling", kKept),
    Row<&D::ScaleTitle>("ScaleTitle", kKept),
    Row<&D::NrOfTicmarks>("NrOfTicmarks", kKept),
    Row<&D::MajorEveryHowMany>("MajorEveryHowMany", kKept),
    Row<&D::LabelsEveryHowMany>("LabelsEveryHowMany", kKept),
    Row<&D::LinearityExponent>("LinearityExponent", kKept),
    Row<&D::SpecialNrOfTicmarks>("SpecialNrOfTicmarks", kKept),
    Row<&D::UnlabelledBottomTic>("UnlabelledBottomTic", kKept),
    Row<&D::FullscaleMultiplier>("FullscaleMultiplier", kKept),
    Row<&D::SpecialExponent>("SpecialExponent", kKept),
    Row<&D::ScaleSetup>("ScaleSetup", kKept),
    Row<&D::RelativeFontSize>("RelativeFontSize", kKept),
    Row<&D::PrintTicsAndArcs>("PrintTicsAndArcs", kKept),
    Row<&D::TicDeflection>("TicDeflection", kKept),
    Row<&D::TicLabelYN>("TicLabelYN", kKept),
    Row<&D::TicPrintYN>("TicPrintYN", kKept),
    Row<&D::TicMajorYN>("TicMajorYN", kKept),
    Row<&D::TicLabelText>("TicLabelText", kKept),
    Row<&D::StandardDeflection>("StandardDeflection", kComputed),
    Row<&D::StandardLabel>("StandardLabel", kComputed),
    Row<&D::StandardTicYN>("StandardTicYN", kKept),
    Row<&D::StandardLabelYN>("StandardLabelYN", kKept),
    Row<&D::DeletedTicCount>("DeletedTicCount", kKept),
    Row<&D::DeletedLabelCount>("DeletedLabelCount", kKept),
    Row<&D::DeletedTics>("DeletedTics", kKept),
    Row<&D::DeletedLabels>("DeletedLabels", kKept),
    Row<&D::TextString>("TextString", kKept),
    Row<&D::LeftToText>("LeftToText", kKept),
    Row<&D::BottomToText>("BottomToText", kKept),
    Row<&D::TextRelativeSize>("TextRelativeSize", kKept),
    Row<&D::TextColor>("TextColor", kKept),
    Row<&D::HighlightStart>("HighlightStart", kKept),
    Row<&D::HighlightStop>("HighlightStop", kKept),
    Row<&D::HighlightCeiling>("HighlightCeiling", kKept),
    Row<&D::HighlightLength>("HighlightLength", kKept),
    Row<&D::HighlightColor>("HighlightColor", kKept),
    Row<&D::CorrectionPair>("CorrectionPair", kKept),
    Row<&D::CorrectionSlope>("CorrectionSlope", kKept),
    Row<&D::ForeignLines>("ForeignLines", kSession),
    Row<&D::CalibrationX>("CalibrationX", kSession),
    Row<&D::CalibrationY>("CalibrationY", kSession),
    Row<&D::CurrentScale>("CurrentScale", kSession),
    Row<&D::ActiveScale>("ActiveScale", kSession),
    Row<&D::HelpTopic>("HelpTopic", kSession),
    Row<&D::ProgramName>("ProgramName", kSession),
    Row<&D::VersionText>("VersionText", kSession),
    Row<&D::ScreenScaleX>("ScreenScaleX", kSession),
    Row<&D::ScreenScaleY>("ScreenScaleY", kSession),
    Row<&D::SharedIndex2>("SharedIndex2", kSession),
    Row<&D::TicLoop>("TicLoop", kSession),
};
// clang-format on

} // namespace

std::span<const RecordField> RecordFields() {
    return kFields;
}

const RecordField* FindRecordField(std::string_view name) {
    const auto* row = std::find_if(std::begin(kFields), std::end(kFields),
                                   [name](const RecordField& field) { return name == field.name; });
    return row == std::end(kFields) ? nullptr : row;
}

std::string EntryName(const RecordField& field, int outer, int inner) {
    std::string text = field.name;
    if (field.indices > 0) {
        text += "[" + std::to_string(outer);
        text += (field.indices == 2 ? "," + std::to_string(inner) : "") + "]";
    }
    return text;
}

} // namespace vernacle
