// Where paths lead, by whatever links.
#pragma once

#include <filesystem>
#include <string>

namespace vernacle {

// Where a file is made that is opened by this path: at the end of its links, which need not exist.
std::filesystem::path EndOfLinks(std::filesystem::path path);

// By whatever links and spellings; of a file that does not exist, whether both would make the same.
bool IsSameFile(const std::string& path, const std::string& other);

} // namespace vernacle
