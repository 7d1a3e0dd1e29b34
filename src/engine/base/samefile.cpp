#include "engine/base/samefile.h"

namespace vernacle {

namespace {

namespace fs = std::filesystem;

constexpr int kMostLinks = 40; // as the systems have it

fs::path FolderOf(const fs::path& file) {
    return file.has_parent_path() ? file.parent_path() : fs::path(".");
}

} // namespace

fs::path EndOfLinks(fs::path path) {
    std::error_code ignored;
    for (int link = 0; link < kMostLinks && fs::is_symlink(path, ignored); ++link) {
        path = path.parent_path() / fs::read_symlink(path, ignored);
    }
    return path;
}

bool IsSameFile(const std::string& path, const std::string& other) {
    std::error_code failed; // what cannot be looked at is not the same
    if (fs::exists(path, failed) || fs::exists(other, failed)) {
        return fs::equivalent(path, other, failed);
    }
    const fs::path place = EndOfLinks(path);
    const fs::path otherPlace = EndOfLinks(other);
    return place.filename() == otherPlace.filename() &&
           fs::equivalent(FolderOf(place), FolderOf(otherPlace), failed);
}

} // namespace vernacle
