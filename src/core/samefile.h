// Whether two paths lead to one file.
#pragma once

#include <string>

namespace vernacle {

// By whatever links and spellings; of a file that does not exist, whether both would make the same.
bool IsSameFile(const std::string& path, const std::string& other);

} // namespace vernacle
