#include "engine/designfile/formerfile.h"

#include <filesystem>

#include "engine/base/codepage.h"
#include "engine/base/hostservices.h"
#include "engine/base/linereader.h"
#include "engine/designfile/starlines.h"

namespace vernacle {

bool IsCareful(std::string_view fileText) {
    LineReader lines{std::string(fileText)};
    while (!lines.AtEnd()) {
        if (lines.Next() == kStarMark) {
            return true;
        }
    }
    return false;
}

void KeepEverydayFile(const std::string& name) {
    std::error_code ignored; // what cannot be looked at cannot be replaced either, which tells it
    if (!std::filesystem::is_regular_file(name, ignored) ||
        std::filesystem::file_size(name, ignored) == 0) {
        return;
    }
    const std::string bytes = Host.readFile(name);
    if (IsCareful(FromFileBytes(bytes))) {
        return;
    }
    const auto sink = Host.openForOutput(name + "~");
    sink->Write(bytes);
    sink->Close();
}

} // namespace vernacle
