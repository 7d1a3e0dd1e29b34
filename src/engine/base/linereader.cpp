#include "engine/base/linereader.h"

#include <algorithm>

#include "engine/base/runtimeerror.h"

namespace vernacle {

std::string_view LineReader::Next() {
    if (AtEnd()) {
        throw FileFailure("Input past end of file");
    }
    const std::size_t end = std::min(text_.find('\n', next_), text_.size());
    std::string_view line = std::string_view(text_).substr(next_, end - next_);
    next_ = end + 1;
    ++number_;
    if (line.ends_with('\r')) {
        line.remove_suffix(1);
    }
    return line;
}

std::string_view LineReader::NextItem() {
    std::string_view line = Next();
    while (line.empty() || line[0] == '*') {
        line = Next();
    }
    return line;
}

std::string_view LineReader::ValueOf(std::string_view item) {
    return item.substr(item.find(':') + 1); // without a colon npos + 1 is the start
}

} // namespace vernacle
