// The table of all fields against the record's own declaration.
#include "engine/core/recordfields.h"

#include <fstream>
#include <iterator>
#include <regex>
#include <set>
#include <vector>

#include "support/enginetest.h"
#include "support/sourcetree.h"

namespace vernacle::test {

namespace {

using Lines = std::vector<std::string>;

std::string SourceOf(const char* file) {
    std::ifstream stream(SourcePath(std::string("src/") + file));
    return {std::istreambuf_iterator<char>(stream), {}};
}

// That group of every match, in order.
Lines Matches(const std::string& text, const std::regex& pattern, std::size_t group = 1) {
    Lines found;
    for (auto match = std::sregex_iterator(text.begin(), text.end(), pattern);
         match != std::sregex_iterator(); ++match) {
        found.push_back((*match)[group]);
    }
    return found;
}

// The names that the record declares: the last word of each declaration before its first value.
Lines DeclaredFields() {
    const std::string header = SourceOf("engine/core/design.h");
    const std::size_t begin = header.find("struct DesignRecord {");
    const std::size_t end = header.find("\n};", begin);
    if (end == std::string::npos) {
        return {};
    }
    const std::string record =
        std::regex_replace(header.substr(begin, end - begin), std::regex("//.*"), "");
    return Matches(record, std::regex(R"((\w+)\s*(=[^;]*|\{[^;]*\})?;)"));
}

class RecordFieldsTest : public EngineTest {};

TEST_F(RecordFieldsTest, HoldsEveryFieldOfTheRecordInItsOrder) {
    const Lines declared = DeclaredFields();
    ASSERT_GT(declared.size(), 80U) << "the declarations were not understood";
    Lines rows;
    for (const RecordField& field : RecordFields()) {
        rows.emplace_back(field.name);
        EXPECT_EQ(FindRecordField(field.name), &field);
    }
    EXPECT_EQ(rows, declared);
    EXPECT_EQ(FindRecordField("PlateWidths"), nullptr);
}

TEST_F(RecordFieldsTest, EachRowIsOfTheFieldThatItNames) {
    const std::regex row(R"x(Row<&D::(\w+)>\("(\w+)")x");
    const std::string source = SourceOf("engine/core/recordfields.cpp");
    const Lines fields = Matches(source, row);
    EXPECT_GT(fields.size(), 80U);
    EXPECT_EQ(fields, Matches(source, row, 2));
}

TEST_F(RecordFieldsTest, EachRowReachesAllEntriesOfItsOwn) {
    std::set<const void*> places;
    std::size_t entries = 0;
    for (const RecordField& field : RecordFields()) {
        ForEachEntry(field, [&](int outer, int inner) {
            const auto address = [](auto pointer) -> const void* {
                if constexpr (std::is_pointer_v<decltype(pointer)>) {
                    return pointer;
                }
                return nullptr;
            };
            places.insert(std::visit(address, field.place.In(Design, outer, inner)));
            ++entries;
        });
    }
    EXPECT_EQ(places.size(), entries);
    EXPECT_EQ(places.count(nullptr), 0U);
}

TEST_F(RecordFieldsTest, NamesEntriesByTheirIndices) {
    EXPECT_EQ(EntryName(*FindRecordField("PlateWidth"), 0, 0), "PlateWidth");
    EXPECT_EQ(EntryName(*FindRecordField("ScaleColor"), 8, 0), "ScaleColor[8]");
    EXPECT_EQ(EntryName(*FindRecordField("TicDeflection"), 1, 360), "TicDeflection[1,360]");
    EXPECT_EQ(EntryName(*FindRecordField("DeletedTics"), 6, 1), "DeletedTics[6,1]");
}

} // namespace
} // namespace vernacle::test
