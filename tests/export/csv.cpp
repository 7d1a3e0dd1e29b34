#include "export/csv.h"

#include <stdexcept>

namespace vernacle::test {

namespace {

// Takes one field and gives the character that ended it.
std::string TakeField(const std::string& text, std::size_t& at) {
    std::string field;
    if (text.at(at) != '"') {
        const std::size_t end = text.find_first_of(",\r\n\"", at);
        if (end == text.npos || text[end] == '"') {
            throw std::runtime_error("CSV: a bare quote, or no end");
        }
        field = text.substr(at, end - at);
        at = end;
        return field;
    }
    for (++at; text.at(at) != '"' || (++at < text.size() && text[at] == '"'); ++at) {
        field += text[at];
    }
    return field;
}

} // namespace

std::vector<CsvRow> ReadCsv(const std::string& text) {
    std::vector<CsvRow> rows;
    for (std::size_t at = 0; at < text.size();) {
        CsvRow row = {TakeField(text, at)};
        while (text.at(at) == ',') {
            row.push_back(TakeField(text, ++at));
        }
        if (text.compare(at, 2, "\r\n") != 0) {
            throw std::runtime_error("CSV: a line without CR LF");
        }
        at += 2;
        rows.push_back(std::move(row));
    }
    return rows;
}

} // namespace vernacle::test
