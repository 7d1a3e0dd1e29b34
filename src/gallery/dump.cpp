#include "gallery/dump.h"

#include <cmath>
#include <variant>

#include "engine/base/numbertext.h"

namespace vernacle::gallery {

namespace {

std::string Escaped(char c) {
    constexpr const char* kDigits = "0123456789ABCDEF";
    switch (c) {
    case '"':
        return "\\\"";
    case '\\':
        return "\\\\";
    case '\n':
        return "\\n";
    case '\r':
        return "\\r";
    default:
        break;
    }
    const auto code = static_cast<unsigned char>(c);
    if (code >= 0x20 && code != 0x7F) {
        return {c};
    }
    return {'\\', 'x', kDigits[code / 16], kDigits[code % 16]};
}

std::string ValueText(float value) {
    if (std::isnan(value)) {
        return "nan";
    }
    if (std::isinf(value)) {
        return value < 0 ? "-inf" : "inf";
    }
    return PlainNumber(value);
}

std::string ValueText(std::int32_t value) {
    return PlainNumber(value);
}

std::string ValueText(const std::string& value) {
    std::string text = "\"";
    for (const char c : value) {
        text += Escaped(c);
    }
    return text + "\"";
}

std::string ValueText(const DynamicValue& value) {
    return std::visit([](const auto& held) { return ValueText(held); }, value);
}

template <typename T>
void DumpValue(const std::string& name, const T& value, std::string& lines) {
    lines += name + " = " + ValueText(value) + "\n";
}

std::string EntryName(const std::string& table, int index) {
    return table + "[" + PlainNumber(index) + "]";
}

template <typename T>
void DumpIfDifferent(const std::string& name, const T& value, const T& atStart,
                     std::string& lines) {
    if (value != atStart) {
        DumpValue(name, value, lines);
    }
}

template <typename T, int Last>
void DumpIfDifferent(const std::string& name, const Table<T, Last>& table,
                     const Table<T, Last>& atStart, std::string& lines) {
    for (int index = 0; index <= Last; ++index) {
        DumpIfDifferent(EntryName(name, index), table[index], atStart[index], lines);
    }
}

template <typename T, int LastScale, int LastTic>
void DumpIfDifferent(const std::string& name, const TicTable<T, LastScale, LastTic>& table,
                     const TicTable<T, LastScale, LastTic>& atStart, std::string& lines) {
    for (int scale = 0; scale <= LastScale; ++scale) {
        const std::string row = EntryName(name, scale);
        for (int tic = 0; tic <= LastTic; ++tic) {
            DumpIfDifferent(EntryName(row, tic), table[scale][tic], atStart[scale][tic], lines);
        }
    }
}

// A plain field always, a table's entries where they differ.
template <auto Member>
void DumpField(const char* name, const DesignRecord& design, const DesignRecord& atStart,
               std::string& lines) {
    if constexpr (requires { ValueText(design.*Member); }) {
        DumpValue(name, design.*Member, lines);
    } else {
        DumpIfDifferent(name, design.*Member, atStart.*Member, lines);
    }
}

struct Field {
    const char* name;
    void (*dump)(const char* name, const DesignRecord& design, const DesignRecord& atStart,
                 std::string& lines);
};

constexpr Field kFields[] = {
    {"DesignFileName", DumpField<&DesignRecord::DesignFileName>},
    {"PlateWidth", DumpField<&DesignRecord::PlateWidth>},
    {"PlateHeight", DumpField<&DesignRecord::PlateHeight>},
    {"BottomToBearing", DumpField<&DesignRecord::BottomToBearing>},
    {"BottomToHoles", DumpField<&DesignRecord::BottomToHoles>},
    {"HoleSeparation", DumpField<&DesignRecord::HoleSeparation>},
    {"PointerDeflection", DumpField<&DesignRecord::PointerDeflection>},
    {"MinorTicLength", DumpField<&DesignRecord::MinorTicLength>},
    {"MinorTicWidth", DumpField<&DesignRecord::MinorTicWidth>},
    {"MajorTicLength", DumpField<&DesignRecord::MajorTicLength>},
    {"MajorTicWidth", DumpField<&DesignRecord::MajorTicWidth>},
    {"FontSize", DumpField<&DesignRecord::FontSize>},
    {"ActualVirtualOffset", DumpField<&DesignRecord::ActualVirtualOffset>},
    {"PlateStyle", DumpField<&DesignRecord::PlateStyle>},
    {"DrawArcs", DumpField<&DesignRecord::DrawArcs>},
    {"LabelRotation", DumpField<&DesignRecord::LabelRotation>},
    {"PrintText", DumpField<&DesignRecord::PrintText>},
    {"LabelSpacing", DumpField<&DesignRecord::LabelSpacing>},
    {"FontName", DumpField<&DesignRecord::FontName>},
    {"NumberOfScales", DumpField<&DesignRecord::NumberOfScales>},
    {"DrawGraphic", DumpField<&DesignRecord::DrawGraphic>},
    {"GraphicFileName", DumpField<&DesignRecord::GraphicFileName>},
    {"LeftToGraphic", DumpField<&DesignRecord::LeftToGraphic>},
    {"BottomToGraphic", DumpField<&DesignRecord::BottomToGraphic>},
    {"GraphicWidth", DumpField<&DesignRecord::GraphicWidth>},
    {"GraphicHeight", DumpField<&DesignRecord::GraphicHeight>},
    {"ArcWidth", DumpField<&DesignRecord::ArcWidth>},
    {"MessageLevel", DumpField<&DesignRecord::MessageLevel>},
    {"NumberOfTexts", DumpField<&DesignRecord::NumberOfTexts>},
    {"NumberOfHighlights", DumpField<&DesignRecord::NumberOfHighlights>},
    {"PlateBackground", DumpField<&DesignRecord::PlateBackground>},
    {"AspectRatio", DumpField<&DesignRecord::AspectRatio>},
    {"NumberOfCorrectionPoints", DumpField<&DesignRecord::NumberOfCorrectionPoints>},
    {"DrawHighlights", DumpField<&DesignRecord::DrawHighlights>},
    {"PlateOutlineCircular", DumpField<&DesignRecord::PlateOutlineCircular>},
    {"ScaleColor", DumpField<&DesignRecord::ScaleColor>},
    {"ScaleLeftEnd", DumpField<&DesignRecord::ScaleLeftEnd>},
    {"ScaleLengthUnits", DumpField<&DesignRecord::ScaleLengthUnits>},
    {"BottomToTitle", DumpField<&DesignRecord::BottomToTitle>},
    {"BottomToScaleCeiling", DumpField<&DesignRecord::BottomToScaleCeiling>},
    {"ScaleTitle", DumpField<&DesignRecord::ScaleTitle>},
    {"NrOfTicmarks", DumpField<&DesignRecord::NrOfTicmarks>},
    {"MajorEveryHowMany", DumpField<&DesignRecord::MajorEveryHowMany>},
    {"LabelsEveryHowMany", DumpField<&DesignRecord::LabelsEveryHowMany>},
    {"LinearityExponent", DumpField<&DesignRecord::LinearityExponent>},
    {"SpecialNrOfTicmarks", DumpField<&DesignRecord::SpecialNrOfTicmarks>},
    {"UnlabelledBottomTic", DumpField<&DesignRecord::UnlabelledBottomTic>},
    {"FullscaleMultiplier", DumpField<&DesignRecord::FullscaleMultiplier>},
    {"RelativeFontSize", DumpField<&DesignRecord::RelativeFontSize>},
    {"PrintTicsAndArcs", DumpField<&DesignRecord::PrintTicsAndArcs>},
    {"TicDeflection", DumpField<&DesignRecord::TicDeflection>},
    {"TicLabelYN", DumpField<&DesignRecord::TicLabelYN>},
    {"TicPrintYN", DumpField<&DesignRecord::TicPrintYN>},
    {"TicMajorYN", DumpField<&DesignRecord::TicMajorYN>},
    {"TicLabelText", DumpField<&DesignRecord::TicLabelText>},
    {"StandardDeflection", DumpField<&DesignRecord::StandardDeflection>},
    {"StandardLabel", DumpField<&DesignRecord::StandardLabel>},
    {"StandardTicYN", DumpField<&DesignRecord::StandardTicYN>},
    {"StandardLabelYN", DumpField<&DesignRecord::StandardLabelYN>},
    {"DeletedTicCount", DumpField<&DesignRecord::DeletedTicCount>},
    {"DeletedLabelCount", DumpField<&DesignRecord::DeletedLabelCount>},
    {"DeletedTics", DumpField<&DesignRecord::DeletedTics>},
    {"DeletedLabels", DumpField<&DesignRecord::DeletedLabels>},
    {"TextString", DumpField<&DesignRecord::TextString>},
    {"LeftToText", DumpField<&DesignRecord::LeftToText>},
    {"BottomToText", DumpField<&DesignRecord::BottomToText>},
    {"TextRelativeSize", DumpField<&DesignRecord::TextRelativeSize>},
    {"TextColor", DumpField<&DesignRecord::TextColor>},
    {"HighlightStart", DumpField<&DesignRecord::HighlightStart>},
    {"HighlightStop", DumpField<&DesignRecord::HighlightStop>},
    {"HighlightCeiling", DumpField<&DesignRecord::HighlightCeiling>},
    {"HighlightLength", DumpField<&DesignRecord::HighlightLength>},
    {"HighlightColor", DumpField<&DesignRecord::HighlightColor>},
    {"CorrectionPair", DumpField<&DesignRecord::CorrectionPair>},
    {"CorrectionSlope", DumpField<&DesignRecord::CorrectionSlope>},
    {"CalibrationX", DumpField<&DesignRecord::CalibrationX>},
    {"CalibrationY", DumpField<&DesignRecord::CalibrationY>},
    {"CurrentScale", DumpField<&DesignRecord::CurrentScale>},
    {"ActiveScale", DumpField<&DesignRecord::ActiveScale>},
    {"HelpTopic", DumpField<&DesignRecord::HelpTopic>},
    {"ProgramName", DumpField<&DesignRecord::ProgramName>},
    {"VersionText", DumpField<&DesignRecord::VersionText>},
    {"ScreenScaleX", DumpField<&DesignRecord::ScreenScaleX>},
    {"ScreenScaleY", DumpField<&DesignRecord::ScreenScaleY>},
    {"SharedIndex2", DumpField<&DesignRecord::SharedIndex2>},
    {"TicLoop", DumpField<&DesignRecord::TicLoop>},
};

} // namespace

std::string DumpDesign(const DesignRecord& design, const DesignRecord& atStart) {
    std::string lines;
    for (const Field& field : kFields) {
        field.dump(field.name, design, atStart, lines);
    }
    return lines;
}

std::vector<std::string_view> DumpedFields() {
    std::vector<std::string_view> names;
    for (const Field& field : kFields) {
        names.emplace_back(field.name);
    }
    return names;
}

} // namespace vernacle::gallery
