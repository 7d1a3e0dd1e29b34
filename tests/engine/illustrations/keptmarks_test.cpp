// What each topic of the illustrated help marks on the bare picture, and that picture itself, stand
// in tests/data/marks: every line, arrow and text with its place, in whole units.
#include <cmath>

#include "schematictest.h"
#include "support/kepttext.h"

namespace vernacle::test {
namespace {

using Marks = std::vector<std::string>;

struct LookRow {
    const char* name;
    const SchematicLook& look;
};

const LookRow kLooks[] = {
    {"plate", kPlatePageLook}, {"wizard", kWizardLook}, {"help", kHelpPageLook}};

void PrintTo(const LookRow& row, std::ostream* stream) {
    *stream << row.name;
}

// What lies at a half is rounded up on every machine.
std::string InWholeUnits(const std::string& call) {
    std::istringstream words(call);
    std::string text;
    for (std::string word; words >> word;) {
        std::istringstream number(word);
        number.imbue(std::locale::classic());
        double value = 0;
        const bool isNumber = word.find('.') != word.npos && number >> value && number.eof();
        text += (text.empty() ? "" : " ") +
                (isNumber ? std::to_string(std::lround(std::floor(value + 0.501))) : word);
    }
    return text;
}

bool ContinuesFill(const std::string& call, const std::string& next) {
    const auto colour = [](const std::string& line) { return line.substr(line.rfind(' ') + 1); };
    return call.starts_with("Line") && next.starts_with("Line") && colour(call) == colour(next);
}

// Of many lines that fill an area, the first, the last and some between.
std::string Written(const Marks& calls) {
    constexpr std::size_t kMany = 40;
    std::string text;
    for (std::size_t start = 0; start < calls.size();) {
        std::size_t end = start + 1;
        while (end < calls.size() && ContinuesFill(calls[end - 1], calls[end])) {
            ++end;
        }
        const bool fills = end - start > kMany;
        for (std::size_t at = start; at < end; ++at) {
            const bool shown = !fills || at + 1 == end || (at - start) % kMany == 0;
            text += shown ? "  " + InWholeUnits(calls[at]) + "\n" : "";
        }
        text += fills ? "  (of " + std::to_string(end - start) + " lines)\n" : "";
        start = end;
    }
    return text;
}

class KeptMarksTest : public SchematicTest, public ::testing::WithParamInterface<LookRow> {};

TEST_P(KeptMarksTest, TopicsMarkWhatIsKept) {
    constexpr int kLastTopic = 45;
    const auto& [name, look] = GetParam();
    const Marks bare = Draw(0, look).calls;
    std::string text = "bare\n" + Written(bare);
    for (int topic = 1; topic <= kLastTopic; ++topic) {
        const Marks& drawn = Draw(topic, look).calls;
        ASSERT_GE(drawn.size(), bare.size());
        const auto marks = drawn.begin() + std::ssize(bare);
        ASSERT_TRUE(std::equal(bare.begin(), bare.end(), drawn.begin())) << "marks are drawn last";
        text += "topic " + std::to_string(topic) + "\n" + Written(Marks(marks, drawn.end()));
    }
    EXPECT_TRUE(IsAsKept(std::string("marks/") + name + ".txt", text));
}

INSTANTIATE_TEST_SUITE_P(Looks, KeptMarksTest, ::testing::ValuesIn(kLooks));

} // namespace
} // namespace vernacle::test
