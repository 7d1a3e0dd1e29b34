// A print spooler of its own, with a few queues whose printers are a folder: what really arrives at
// a printer. Nothing of the system's spooler is touched.
#pragma once

#include <filesystem>
#include <memory>
#include <string>
#include <vector>

#include "support/display.h"

namespace vernacle::test {

struct PrintJob {
    std::string bytes;
    std::string title;
    std::string copies;
    std::string options; // "name=value name=value ", as the spooler hands them on

    bool Has(const std::string& option) const; // "name=value", or a name that has no value
};

// Its queues: "plotter", the default, passes on what comes; "office" and "letter" send it through
// the usual filters with margins of 12 points, their usual papers being A4 and Letter.
class Spooler {
public:
    // What of the programs that make a spooler is not installed; empty if all are there.
    static std::string Missing();

    // Throws std::runtime_error if it does not come up.
    Spooler();
    ~Spooler();
    Spooler(const Spooler&) = delete;
    Spooler& operator=(const Spooler&) = delete;

    // For the programs that print on it: "NAME=value".
    std::vector<std::string> Environment() const;

    void Start(); // with its queues as at first
    void End();

    // One of the spooler's own programs; throws what it says if it fails.
    void Do(const std::string& program, const std::vector<std::string>& arguments) const;
    void AddQueue(const std::string& name, const std::string& paper) const;

    // The one job that the queue's printer got since it was asked last; an empty one if there comes
    // none.
    PrintJob TakeJob(const std::string& queue) const;
    // Whether a job reached any printer since then.
    bool HasJobs() const;
    // How many jobs wait in the queue.
    std::size_t Waiting(const std::string& queue) const;

private:
    void WriteSettings() const;
    std::filesystem::path Kept() const { return folder_ / "jobs"; }
    std::string Server() const { return (folder_ / "socket").string(); }

    std::filesystem::path folder_;
    std::unique_ptr<BackgroundProgram> server_;
};

} // namespace vernacle::test
