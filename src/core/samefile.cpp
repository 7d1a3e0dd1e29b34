#include "core/samefile.h"

#include <filesystem>

namespace vernacle {

namespace {

namespace fs = std::filesystem;

constexpr int kMostLinks = 40; // as the systems have it

// Where a file is made that is opened by this path: at the end of its links, which need not exist.
fs::path PlaceOf(fs::path path) {
    std::error_code ignored;
    for (int link = 0; link < kMostLinks; ++link) {
        if (!fs::is_symlink(fs::symlink_status(path, ignored))) {
            break;
        }
        path = path.parent_path() / fs::read_symlink(path, ignored);
    }
    return path;
}

fs::path FolderOf(const fs::path& file) {
    return file.has_parent_path() ? file.parent_path() : fs::path(".");
}

} // namespace

bool IsSameFile(const std::string& path, const std::string& other) {
    std::error_code failed; // what cannot be looked at is not the same
    if (fs::exists(path, failed) || fs::exists(other, failed)) {
        return fs::equivalent(path, other, failed);
    }
    const fs::path place = PlaceOf(path);
    const fs::path otherPlace = PlaceOf(other);
    return place.filename() == otherPlace.filename() &&
           fs::equivalent(FolderOf(place), FolderOf(otherPlace), failed);
}

} // namespace vernacle
