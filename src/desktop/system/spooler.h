// The print spooler, spoken to by its own programs: what it answers to a job is heard.
#pragma once

#include <chrono>
#include <string>
#include <string_view>
#include <vector>

namespace vernacle {

struct SpoolJob {
    std::string program = "lp"; // found on the path; queues what it reads from standard input
    std::vector<std::string> arguments;
    std::chrono::milliseconds limit{60000}; // until its answer; the user may give up before
};

// Hands the bytes over as one job. A program that is not there, fails, does not take the whole job,
// outlasts the limit or is cancelled by the user is a FileFailure with its reason. A queue that
// holds the job has taken it.
void SendJob(const SpoolJob& job, std::string_view bytes);

// The full path of a program; empty if there is none of that name.
std::string FindProgram(const std::string& name);

struct PrintQueues {
    std::vector<std::string> names;
    std::string usual; // which jobs without a queue go to; empty if there is none
};

// The queues that the spooler has, none where there is no spooler; a FileFailure if it does not
// answer or the user does not wait for it.
PrintQueues ReadQueues(const std::string& program = "lpstat",
                       std::chrono::milliseconds limit = std::chrono::milliseconds(60000));

} // namespace vernacle
