// Small helpers for UTF-8 texts: blanks and characters.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace vernacle {

// The text without the blanks at both ends; other white space counts as text.
std::string_view Trimmed(std::string_view text);

// The text without the blanks at its start.
std::string_view LeftTrimmed(std::string_view text);

// A path's file name: what stands behind its last folder, whichever way its system parts them.
std::string_view FileNameOf(std::string_view path);

// The number of characters (code points) of a UTF-8 text; each stray byte counts as one.
std::size_t CharacterCount(std::string_view text);

// The first characters of a UTF-8 text, all of it if there are no more.
std::string_view Leftmost(std::string_view text, std::size_t characters);

// So many characters from the given one on, counted from 1; fewer where the text ends.
std::string_view Middle(std::string_view text, std::size_t first, std::size_t characters);

} // namespace vernacle
