// Designs whose numbers no plate has: every form is either written whole or fails in words.
#include <filesystem>
#include <ostream>

#include "export/exporttest.h"

namespace vernacle::test {

namespace {

struct AbsurdCase {
    const char* name;
    Edits edits;
};

void PrintTo(const AbsurdCase& absurd, std::ostream* out) {
    *out << absurd.name;
}

class AbsurdTest : public ExportTest, public ::testing::WithParamInterface<AbsurdCase> {};

const AbsurdCase kAbsurd[] = {
    {"a_plate_as_high_as_can_be", {{"Plate height: ", "9999999999"}}},
    {"a_plate_of_no_height", {{"Plate height: ", "1e-9"}}},
    {"a_plate_of_no_width", {{"Plate width: ", "1e-9"}}},
    {"a_bearing_far_away", {{"Bottom to bearing: ", "-1e10"}}},
    {"holes_far_away", {{"Bottom to mounting holes: ", "1e10"}}},
    {"a_pointer_that_spins", {{"Pointer deflection: ", "1e10"}}},
    {"tics_as_long_as_can_be", {{"Major ticmark length: ", "1e10"}}},
    {"tics_as_wide_as_can_be", {{"Major ticmark width: ", "1e10"}}},
    {"an_arc_as_wide_as_can_be", {{"Arc width: ", "1e10"}}},
    {"an_arc_that_overflows_its_pixels", {{"Arc width: ", "9e8"}}},
    {"letters_as_high_as_can_be", {{"Font size: ", "1e10"}}},
    {"letters_of_a_hundred_metres", {{"Font size: ", "300000"}}},
    {"letters_too_small_to_see", {{"Font size: ", "1e-9"}}},
    {"an_offset_far_above", {{"Actual/virtual offset: ", "-1e10"}}},
    {"a_scale_far_above", {{"Bottom to scale ceiling: ", "1e10"}}},
    {"a_scale_below", {{"Bottom to scale ceiling: ", "-200"}}},
    {"labels_far_away", {{"Label spacing: ", "1e10"}, {"Label rotation H/V/B:", "B"}}},
    {"upright_labels_far_away", {{"Label spacing: ", "1e10"}}},
    {"a_title_far_away", {{"Bottom to title: ", "1e10"}}},
    {"values_beyond_counting",
     {{"Scale length (units): ", "1e10"}, {"Scale left end (units): ", "-1e10"}}},
    {"relative_sizes_as_large_as_can_be", {{"Scale 1: ", "1e10"}}},
    {"a_relative_size_below_nothing", {{"Scale 1: ", "-1e10"}}},
    {"everything_turned_by_a_word", {{"Label rotation H/V/B:", "sideways"}}},
    {"a_title_of_a_novel", {{"Scale title:", std::string(100000, 'M')}}},
};

// Whether one of the words that stand for no number stands alone in the text.
bool HasNoNumber(const std::string& text) {
    const std::string before = "- \t\r\n\",(";
    const std::string behind = " \t\r\n\",)";
    for (const char* word : {"nan", "inf"}) {
        for (std::size_t at = text.find(word); at != text.npos; at = text.find(word, at + 1)) {
            const bool begins = at == 0 || before.find(text[at - 1]) != before.npos;
            const bool ends = at + 3 >= text.size() || behind.find(text[at + 3]) != behind.npos;
            if (begins && ends) {
                return true;
            }
        }
    }
    return false;
}

// A drawing that was written must be one that others can read.
TEST_P(AbsurdTest, EveryFormIsWrittenAndCanBeReadOrFailsInWords) {
    const Words outputs = EveryForm();
    const ProcessResult result =
        Export(Joined({EditedExample("VOLTS-0-15", GetParam().edits)}, outputs));
    EXPECT_EQ(result.signal, 0);
    bool allWritten = true;
    for (const std::string& path : outputs) {
        const bool written = std::filesystem::exists(path);
        EXPECT_NE(IsSaidUnwritten(result, path), written) << path << ": " << result.err;
        allWritten = allWritten && written;
    }
    EXPECT_EQ(result.status, allWritten ? 0 : 1);
    if (Exists("plate.pdf")) {
        const ProcessResult read = RunProgram("pdftocairo", {"-svg", Path("plate.pdf"), "-"});
        EXPECT_EQ(read.err.find("Syntax Error"), std::string::npos) << read.err;
    }
    for (const char* name : {"plate.svg", "plate.hpgl"}) {
        EXPECT_FALSE(Exists(name) && HasNoNumber(ReadFile(name))) << name;
    }
}

INSTANTIATE_TEST_SUITE_P(Designs, AbsurdTest, ::testing::ValuesIn(kAbsurd),
                         [](const auto& test) { return std::string(test.param.name); });

} // namespace

} // namespace vernacle::test
