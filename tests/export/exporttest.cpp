#include "export/exporttest.h"

#include <algorithm>
#include <fstream>
#include <iterator>
#include <sstream>

#include "support/sourcetree.h"

namespace vernacle::test {

Words Joined(Words first, const Words& behind) {
    first.insert(first.end(), behind.begin(), behind.end());
    return first;
}

namespace {

// Without the line that tells what an everyday plate leaves out of the design.
std::string WithoutNote(const std::string& said) {
    const bool isNote = said.find(": left out without --workshop: ") != said.npos &&
                        said.find('\n') + 1 == said.size();
    return isNote ? "" : said;
}

} // namespace

ProcessResult ExportTest::Export(const Words& arguments, const ProcessSetting& setting) {
    return RunProgram(VERNACLE_EXPORT, arguments, setting);
}

void ExportTest::ExportQuietly(const std::string& design, const Words& outputs,
                               const Words& options) {
    const Words inputs = Joined(options, {"--at", kAt, design});
    const ProcessResult result = Export(Joined(inputs, outputs));
    ASSERT_EQ(result.status, 0) << result.err;
    EXPECT_EQ(result.out + WithoutNote(result.err), "");
}

std::string ExportTest::Example(const std::string& name) {
    return SourcePath("examples/" + name + ".VRN");
}

std::string ExportTest::EditedExample(const std::string& name, const Edits& edits) const {
    std::string design = ReadText(Example(name));
    for (const auto& [label, value] : edits) {
        const std::size_t line = design.find("\n" + label);
        if (line == design.npos) {
            ADD_FAILURE() << name << " has no line \"" << label << "\"";
            continue;
        }
        const std::size_t start = line + 1 + label.size();
        design.replace(start, design.find('\r', start) - start, value);
    }
    return WriteFile(name + "-edited.VRN", design);
}

Words ExportTest::EveryForm(const std::string& stem) const {
    Words paths;
    for (const char* ending : kEndings) {
        paths.push_back(Path(stem + ending));
    }
    return paths;
}

bool ExportTest::IsSaidUnwritten(const ProcessResult& result, const std::string& path) {
    return result.err.find("vernacle-export: " + path + " was not written") != std::string::npos;
}

std::size_t ExportTest::CountFiles() const {
    const std::filesystem::directory_iterator files(Path(""));
    return static_cast<std::size_t>(std::distance(begin(files), end(files)));
}

std::string ReadText(const std::string& path) {
    std::ifstream file(path, std::ios::binary);
    EXPECT_TRUE(file) << path;
    std::ostringstream bytes;
    bytes << file.rdbuf(); // in blocks
    return bytes.str();
}

std::string DeletedList(const char* line, const std::vector<int>& tics) {
    std::string text = std::to_string(tics.size());
    for (const int tic : tics) {
        text += std::string("\r\n") + line + std::to_string(tic);
    }
    return text;
}

Edit DeletedTics(const std::vector<int>& tics) {
    return {"Scale 1 - deleted tics: ", DeletedList("Tic deleted: ", tics)};
}

Edit DeletedLabels(const std::vector<int>& tics) {
    return {"Scale 1 - deleted labels: ", DeletedList("Label deleted: ", tics)};
}

std::size_t CountLines(const std::string& text) {
    return static_cast<std::size_t>(std::count(text.begin(), text.end(), '\n'));
}

std::size_t NumberOfLine(const std::string& text, const std::string& line) {
    const std::size_t at = text.find("\n" + line + "\r");
    EXPECT_NE(at, text.npos) << line;
    return CountLines(text.substr(0, at)) + 2;
}

} // namespace vernacle::test
