// The lines of a text file held in memory.
#pragma once

#include <string>
#include <string_view>

namespace vernacle {

// Of all files that the program writes.
constexpr std::string_view kLineEnd = "\r\n";

class LineReader {
public:
    explicit LineReader(std::string text) : text_(std::move(text)) {}

    bool AtEnd() const { return next_ >= text_.size(); }

    // The next line without its end, CR LF or LF alone; valid as long as the reader. Throws
    // FileFailure behind the last one.
    std::string_view Next();

    // The next line that is neither empty nor a comment ("*" in its first column), and of it what
    // stands behind the first ":", or all of it without one. Throws FileFailure at the end.
    std::string_view NextValue();

private:
    std::string text_;
    std::size_t next_ = 0;
};

} // namespace vernacle
