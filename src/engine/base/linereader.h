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

    // Of the line that was given last, from 1, and whether it was all there: with an end of its
    // own.
    int LineNumber() const { return number_; }
    bool IsEnded() const { return next_ <= text_.size(); }

    // The next line without its end, CR LF or LF alone; valid as long as the reader. Throws
    // FileFailure behind the last one.
    std::string_view Next();

    // The next line that is neither empty nor a comment ("*" in its first column). Throws
    // FileFailure at the end.
    std::string_view NextItem();

    // Of that line what stands behind the first ":", or all of it without one.
    std::string_view NextValue() { return ValueOf(NextItem()); }
    static std::string_view ValueOf(std::string_view item);

private:
    std::string text_;
    std::size_t next_ = 0;
    int number_ = 0;
};

} // namespace vernacle
