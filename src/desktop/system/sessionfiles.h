// The sessions of the workshop: each run keeps one, and the last ten stay.
#pragma once

#include <string>
#include <vector>

namespace vernacle {

class SessionFiles {
public:
    static constexpr int kKept = 10;

    explicit SessionFiles(std::string folder) : folder_(std::move(folder)) {}

    // The file of this run's session of that name ("LASTWORKSHOP.VRN"): of ten in turn the one that
    // is not there yet, or the oldest. The same from then on; its folder is made.
    std::string PathOf(const std::string& name);

    // Those that are there, the newest first.
    std::vector<std::string> NewestFirst(const std::string& name) const;

    // The newest; that of PathOf where there is none.
    std::string Newest(const std::string& name);

private:
    std::string folder_;
    std::string chosen_;
};

} // namespace vernacle
