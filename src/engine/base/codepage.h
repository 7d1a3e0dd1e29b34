// Texts are UTF-8 inside the program; this turns them into the bytes of its files and back.
#pragma once

#include <string>
#include <string_view>

namespace vernacle {

// The bytes of a design file for the text: Windows-1252, or, so that no text is lost, UTF-8 with a
// byte order mark if a character has no place in that page.
std::string ToFileBytes(std::string_view text);

// The text of a design file's bytes, by the byte order mark or its absence. Never fails: bytes that
// are no UTF-8 behind a mark become U+FFFD.
std::string FromFileBytes(std::string_view bytes);

// The bytes for a plotter: Windows-1252, "?" for any other character.
std::string ToPlotterBytes(std::string_view text);

} // namespace vernacle
