#include "support/pdfreader.h"

#include <charconv>
#include <stdexcept>

#include "support/process.h"

namespace vernacle::test {

namespace {

constexpr double kMmPerPoint = 25.4 / 72;

std::string OutputOf(const std::string& program, const std::vector<std::string>& arguments) {
    ProcessResult result = RunProgram(program, arguments);
    if (result.status != 0) {
        throw std::runtime_error(program + " failed: " + result.err);
    }
    return std::move(result.out);
}

double NumberAt(const std::string& text, std::size_t start) {
    double value = 0;
    std::from_chars(text.data() + start, text.data() + text.size(), value);
    return value;
}

} // namespace

SvgPicture ReadPdf(const std::string& path) {
    return ReadSvg(OutputOf("pdftocairo", {"-svg", path, "-"}));
}

MmPoint Word::Centre() const {
    return {(topLeft.x + bottomRight.x) / 2, (topLeft.y + bottomRight.y) / 2};
}

std::vector<Word> ReadPdfWords(const std::string& path) {
    const std::string page = OutputOf("pdftotext", {"-bbox", path, "-"});
    std::vector<Word> words;
    for (std::size_t at = page.find("<word "); at != page.npos; at = page.find("<word ", at + 1)) {
        const std::size_t end = page.find("</word>", at);
        const std::string word = page.substr(at, end - at);
        const auto edge = [&word](const std::string& name) {
            const std::size_t start = word.find(name + "=\"") + name.size() + 2;
            return NumberAt(word, start) * kMmPerPoint;
        };
        words.push_back({word.substr(word.find('>') + 1),
                         {edge("xMin"), edge("yMin")},
                         {edge("xMax"), edge("yMax")}});
    }
    return words;
}

} // namespace vernacle::test
