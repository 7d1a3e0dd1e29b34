#include "files/outputfile.h"

#include <algorithm>
#include <cerrno>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <filesystem>
#include <string_view>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include "engine/base/runtimeerror.h"
#include "engine/base/samefile.h"

namespace vernacle {

namespace {

constexpr mode_t kModeOfNewFiles = 0666; // less the user's mask
constexpr mode_t kAllOfTheMode = 07777;

class Descriptor {
public:
    explicit Descriptor(int number = -1) : number_(number) {}
    ~Descriptor() { Close(); }
    Descriptor(const Descriptor&) = delete;
    Descriptor& operator=(const Descriptor&) = delete;

    int Number() const { return number_; }
    bool IsOpen() const { return number_ >= 0; }

    // False with errno set if what was written could not be kept.
    bool Close() {
        const int number = number_;
        number_ = -1;
        return number < 0 || close(number) == 0;
    }

private:
    int number_;
};

// Removes the file at the end of the scope, unless it has been given its place.
class Unfinished {
public:
    explicit Unfinished(const std::string& path) : path_(path) {}
    ~Unfinished() {
        if (!isPlaced_) {
            unlink(path_.c_str());
        }
    }
    Unfinished(const Unfinished&) = delete;
    Unfinished& operator=(const Unfinished&) = delete;

    bool MoveTo(const std::string& target) {
        isPlaced_ = std::rename(path_.c_str(), target.c_str()) == 0;
        return isPlaced_;
    }

private:
    const std::string& path_;
    bool isPlaced_ = false;
};

// All the bytes, by calls that may each take a part; false with errno set.
template <typename WritePart>
bool WriteAll(std::string_view bytes, WritePart writePart) {
    while (!bytes.empty()) {
        const ssize_t count = writePart(bytes);
        if (count < 0 && errno != EINTR) {
            return false;
        }
        bytes.remove_prefix(static_cast<std::size_t>(std::max<ssize_t>(count, 0)));
    }
    return true;
}

bool WriteTo(const Descriptor& file, std::string_view bytes) {
    return WriteAll(bytes, [&](std::string_view rest) {
        return write(file.Number(), rest.data(), rest.size());
    });
}

bool WriteAt(const Descriptor& file, std::size_t offset, std::string_view bytes) {
    const std::size_t end = offset + bytes.size();
    return WriteAll(bytes, [&](std::string_view rest) {
        return pwrite(file.Number(), rest.data(), rest.size(),
                      static_cast<off_t>(end - rest.size()));
    });
}

mode_t Mask() {
    const mode_t mask = umask(0);
    umask(mask);
    return mask;
}

class OutputFile : public ByteSink {
public:
    OutputFile(const std::string& path, Flush flush)
        : path_(path),
          flushesAll_(flush == Flush::All),
          target_(EndOfLinks(path)),
          stood_(open(path.c_str(), O_WRONLY | O_CLOEXEC | O_NOCTTY)) {
        if (stood_.IsOpen() ? fstat(stood_.Number(), &state_) != 0 : errno != ENOENT) {
            Fail();
        }
    }

    void Write(std::string_view bytes) override { bytes_ += bytes; }

    void Close() override {
        if (stood_.IsOpen() && !S_ISREG(state_.st_mode)) {
            Check(WriteTo(stood_, bytes_) && stood_.Close());
        } else if (MustStay() || !Replace()) {
            Overwrite();
        }
    }

private:
    [[noreturn]] void Fail() const { throw FileFailure(path_ + ": " + std::strerror(errno)); }

    void Check(bool done) const {
        if (!done) {
            Fail();
        }
    }

    // Another name of the same file would go on showing the old one; and a file that was removed
    // since has no place.
    bool MustStay() const {
        struct stat there {};
        return stood_.IsOpen() && (state_.st_nlink != 1 || stat(target_.c_str(), &there) != 0 ||
                                   there.st_dev != state_.st_dev || there.st_ino != state_.st_ino);
    }

    // False where no file of ours can take the place of the one that stands there.
    bool Replace() {
        std::string name = (target_.parent_path() / ".vernacle-XXXXXX").string();
        Descriptor beside(mkostemp(name.data(), O_CLOEXEC));
        if (!beside.IsOpen()) {
            return WithoutPlace();
        }
        Unfinished unfinished(name);
        if (!TakeOwnerAndMode(beside)) {
            return WithoutPlace();
        }
        // Written through, or the system's crash could lose both the old one and the new.
        const bool isFlushed = flushesAll_ || stood_.IsOpen();
        Check(WriteTo(beside, bytes_) && (!isFlushed || fsync(beside.Number()) == 0) &&
              beside.Close());
        if (!unfinished.MoveTo(target_.string())) {
            return WithoutPlace();
        }
        FlushFolder();
        return true;
    }

    // The file itself is whole: a folder that cannot be flushed is no failure.
    void FlushFolder() const {
        if (flushesAll_) {
            const std::string folder = target_.parent_path().string();
            const Descriptor opened(
                open(folder.empty() ? "." : folder.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC));
            static_cast<void>(!opened.IsOpen() || fsync(opened.Number()) == 0);
        }
    }

    bool WithoutPlace() const {
        Check(stood_.IsOpen());
        return false;
    }

    bool TakeOwnerAndMode(const Descriptor& beside) const {
        if (!stood_.IsOpen()) {
            return fchmod(beside.Number(), kModeOfNewFiles & ~Mask()) == 0;
        }
        struct stat own {};
        const bool isOurs = fstat(beside.Number(), &own) == 0 && own.st_uid == state_.st_uid &&
                            own.st_gid == state_.st_gid;
        return (isOurs || fchown(beside.Number(), state_.st_uid, state_.st_gid) == 0) &&
               fchmod(beside.Number(), state_.st_mode & kAllOfTheMode) == 0;
    }

    // What is longer than the old file goes first: a disk without room for it is noticed while the
    // old bytes still stand.
    void Overwrite() {
        Check(fstat(stood_.Number(), &state_) == 0);
        const auto before = static_cast<std::size_t>(state_.st_size);
        const std::string_view bytes = bytes_;
        if (bytes.size() > before && !WriteAt(stood_, before, bytes.substr(before))) {
            const int error = errno;
            const int undone = ftruncate(stood_.Number(), state_.st_size);
            errno = undone == 0 ? error : errno;
            Fail();
        }
        Check(WriteAt(stood_, 0, bytes.substr(0, before)) &&
              ftruncate(stood_.Number(), static_cast<off_t>(bytes.size())) == 0 &&
              (!flushesAll_ || fsync(stood_.Number()) == 0) && stood_.Close());
    }

    std::string path_; // as it was named
    bool flushesAll_;
    std::filesystem::path target_; // where the file itself stands, or is to stand
    Descriptor stood_;             // what stands there already, opened for writing
    struct stat state_ {};         // of that
    std::string bytes_;
};

} // namespace

std::unique_ptr<ByteSink> OpenOutputFile(const std::string& path, Flush flush) {
    return std::make_unique<OutputFile>(path, flush);
}

} // namespace vernacle
