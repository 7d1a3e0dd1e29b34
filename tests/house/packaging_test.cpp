// What a desktop is told of the programs: each has an entry and an icon of its own.
#include <filesystem>
#include <fstream>
#include <iterator>
#include <set>

#include <gtest/gtest.h>

#include "support/sourcetree.h"

namespace vernacle::test {
namespace {

std::string TextOfFile(const std::string& name) {
    std::ifstream file(SourcePath(name));
    return {std::istreambuf_iterator<char>(file), {}};
}

// What the entry of that program says for a key; empty where it says nothing.
std::string EntryOf(const std::string& program, const std::string& key) {
    const std::string text = TextOfFile("packaging/" + program + ".desktop");
    const std::size_t start = text.find("\n" + key + "=");
    if (start == std::string::npos) {
        return {};
    }
    const std::size_t value = start + key.size() + 2;
    return text.substr(value, text.find('\n', value) - value);
}

struct PackagedProgram {
    const char* name;
    const char* title;
    const char* exec; // a desktop hands a file to who takes one
    const char* icon;
};

constexpr PackagedProgram kPrograms[] = {
    {"vernacle", "Vernacle", "vernacle", "src/desktop/kit/icons/vernacle.svg"},
    {"vernacle-workshop", "Vernacle Workshop", "vernacle-workshop %f",
     "packaging/vernacle-workshop.svg"},
};

TEST(PackagingTest, EachProgramHasAnEntryAndAnIconOfItsOwn) {
    const std::string installs =
        TextOfFile("packaging/CMakeLists.txt") + TextOfFile("src/desktop/app/CMakeLists.txt");
    std::set<std::string> icons;
    for (const PackagedProgram& program : kPrograms) {
        const std::string name = program.name;
        EXPECT_EQ(EntryOf(name, "Name"), program.title);
        EXPECT_EQ(EntryOf(name, "Exec"), program.exec);
        EXPECT_EQ(EntryOf(name, "Icon"), name);
        EXPECT_NE(TextOfFile(program.icon).find("<title>" + std::string(program.title)),
                  std::string::npos);
        icons.insert(TextOfFile(program.icon));
        for (const std::string& installed : {name + ".desktop", name + ".svg"}) {
            EXPECT_NE(installs.find(installed), std::string::npos) << installed;
        }
    }
    EXPECT_EQ(icons.size(), std::size(kPrograms));
    EXPECT_NE(installs.find("install(TARGETS vernacle vernacle-workshop "), std::string::npos);
}

} // namespace
} // namespace vernacle::test
