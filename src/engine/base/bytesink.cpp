#include "engine/base/bytesink.h"

#include <algorithm>
#include <array>
#include <cerrno>
#include <cstdio>
#include <cstring>
#include <filesystem>

#include "engine/base/runtimeerror.h"

namespace vernacle {

namespace {

struct Closer {
    void operator()(std::FILE* file) const { std::fclose(file); }
};
using File = std::unique_ptr<std::FILE, Closer>;

[[noreturn]] void Fail(const std::string& path) {
    throw FileFailure(path + ": " + std::strerror(errno));
}

File Open(const std::string& path, const char* mode) {
    File file(std::fopen(path.c_str(), mode));
    if (!file) {
        Fail(path);
    }
    return file;
}

class FileSink : public ByteSink {
public:
    explicit FileSink(const std::string& path) : path_(path), file_(Open(path, "wb")) {}

    void Write(std::string_view bytes) override {
        if (std::fwrite(bytes.data(), 1, bytes.size(), file_.get()) != bytes.size()) {
            Fail(path_);
        }
    }

    void Close() override {
        const bool flushed = std::fflush(file_.get()) == 0;
        const int error = errno;
        if (std::fclose(file_.release()) != 0 || !flushed) {
            errno = flushed ? errno : error;
            Fail(path_);
        }
    }

private:
    std::string path_;
    File file_;
};

// Whatever gives bytes without being a file: opening it may wait for another process. What is not
// there or is a folder tells its own reason when it is opened and read.
bool IsDevice(const std::string& path) {
    std::error_code ignored;
    const auto status = std::filesystem::status(path, ignored);
    return std::filesystem::is_other(status);
}

bool IsStandardInput(const std::string& path) {
    constexpr std::array<std::string_view, 3> kNames = {"/dev/stdin", "/dev/fd/0",
                                                        "/proc/self/fd/0"};
    return std::find(kNames.begin(), kNames.end(), path) != kNames.end();
}

std::string ReadToEnd(const std::string& path) {
    const File file = Open(path, "rb");
    std::string bytes;
    std::array<char, 65536> part{};
    for (std::size_t count = part.size(); count == part.size();) {
        count = std::fread(part.data(), 1, part.size(), file.get());
        bytes.append(part.data(), count);
        if (bytes.size() > kLargestFile) {
            throw FileFailure(path + ": too large");
        }
    }
    if (std::ferror(file.get()) != 0) {
        Fail(path);
    }
    return bytes;
}

} // namespace

std::unique_ptr<ByteSink> OpenFileSink(const std::string& path) {
    return std::make_unique<FileSink>(path);
}

std::string ReadWholeFile(const std::string& path) {
    if (IsDevice(path)) {
        throw FileFailure(path + ": not a regular file");
    }
    return ReadToEnd(path);
}

std::string ReadFileOrInput(const std::string& path) {
    return IsStandardInput(path) ? ReadToEnd(path) : ReadWholeFile(path);
}

} // namespace vernacle
