// Reads a comma-separated table as RFC 4180 has it, and complains where it is not so.
#pragma once

#include <string>
#include <vector>

namespace vernacle::test {

using CsvRow = std::vector<std::string>;

// Every line must end with CR LF, quotes stand around a whole field or not at all.
// Throws std::runtime_error otherwise.
std::vector<CsvRow> ReadCsv(const std::string& text);

} // namespace vernacle::test
