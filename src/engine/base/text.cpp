#include "engine/base/text.h"

#include <algorithm>

namespace vernacle {

std::string_view LeftTrimmed(std::string_view text) {
    text.remove_prefix(std::min(text.find_first_not_of(' '), text.size()));
    return text;
}

std::string_view Trimmed(std::string_view text) {
    text = LeftTrimmed(text);
    return text.substr(0, text.find_last_not_of(' ') + 1);
}

namespace {

bool IsContinuation(char c) {
    return (static_cast<unsigned char>(c) & 0xC0) == 0x80;
}

} // namespace

std::string_view FileNameOf(std::string_view path) {
    return path.substr(path.find_last_of("/\\") + 1); // all of it where there is none
}

std::size_t CharacterCount(std::string_view text) {
    const auto continuations = std::count_if(text.begin(), text.end(), IsContinuation);
    return text.size() - static_cast<std::size_t>(continuations);
}

std::string_view Leftmost(std::string_view text, std::size_t characters) {
    std::size_t length = 0;
    while (length < text.size() && (IsContinuation(text[length]) || characters-- > 0)) {
        ++length;
    }
    return text.substr(0, length);
}

std::string_view Middle(std::string_view text, std::size_t first, std::size_t characters) {
    const std::size_t before = Leftmost(text, first - 1).size();
    return Leftmost(text.substr(before), characters);
}

} // namespace vernacle
