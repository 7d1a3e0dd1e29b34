#include "support/process.h"

#include <array>
#include <cerrno>
#include <stdexcept>

#include <fcntl.h>
#include <poll.h>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

namespace vernacle::test {

namespace {

constexpr rlim_t kMostSeconds = 300; // of computing
constexpr int kNotStarted = 127;

struct Pipe {
    int readEnd = -1;
    int writeEnd = -1;
};

Pipe MakePipe() {
    std::array<int, 2> ends{};
    if (pipe2(ends.data(), O_CLOEXEC) != 0) {
        throw std::runtime_error("no pipe");
    }
    return {ends[0], ends[1]};
}

// argv and the environment are made before the fork: between it and the exec nothing is allocated.
struct Command {
    Command(const std::string& program, const std::vector<std::string>& arguments,
            const ProcessSetting& setting)
        : words{"env"} {
        words.insert(words.end(), setting.environment.begin(), setting.environment.end());
        words.push_back(program);
        words.insert(words.end(), arguments.begin(), arguments.end());
        for (std::string& word : words) {
            argv.push_back(word.data());
        }
        argv.push_back(nullptr);
    }

    std::vector<std::string> words;
    std::vector<char*> argv;
};

[[noreturn]] void Become(Command& command, const ProcessSetting& setting, int out, int err) {
    dup2(out, STDOUT_FILENO);
    dup2(err, STDERR_FILENO);
    const rlimit computing{kMostSeconds, kMostSeconds};
    setrlimit(RLIMIT_CPU, &computing);
    if (setting.largestFileBytes) {
        const rlimit size{*setting.largestFileBytes, *setting.largestFileBytes};
        setrlimit(RLIMIT_FSIZE, &size);
    }
    if (setting.folder.empty() || chdir(setting.folder.c_str()) == 0) {
        execvp("env", command.argv.data());
    }
    _exit(kNotStarted);
}

// Reads both pipes until both are at their end.
void ReadBoth(int outEnd, int errEnd, ProcessResult& result) {
    std::array<pollfd, 2> ends{{{outEnd, POLLIN, 0}, {errEnd, POLLIN, 0}}};
    const std::array<std::string*, 2> texts{&result.out, &result.err};
    std::array<char, 65536> part{};
    for (int open = 2; open > 0;) {
        if (poll(ends.data(), ends.size(), -1) < 0 && errno != EINTR) {
            throw std::runtime_error("poll failed");
        }
        for (std::size_t i = 0; i < ends.size(); ++i) {
            if (ends[i].fd < 0 || ends[i].revents == 0) {
                continue;
            }
            const ssize_t count = read(ends[i].fd, part.data(), part.size());
            if (count > 0) {
                texts[i]->append(part.data(), static_cast<std::size_t>(count));
            } else if (count == 0 || errno != EINTR) {
                close(ends[i].fd);
                ends[i].fd = -1; // which poll passes over
                --open;
            }
        }
    }
}

} // namespace

ProcessResult RunProgram(const std::string& program, const std::vector<std::string>& arguments,
                         const ProcessSetting& setting) {
    Command command(program, arguments, setting);
    const Pipe out = MakePipe();
    const Pipe err = MakePipe();
    const pid_t child = fork();
    if (child < 0) {
        throw std::runtime_error("no process");
    }
    if (child == 0) {
        Become(command, setting, out.writeEnd, err.writeEnd);
    }
    close(out.writeEnd);
    close(err.writeEnd);
    ProcessResult result;
    ReadBoth(out.readEnd, err.readEnd, result);
    int ending = 0;
    while (waitpid(child, &ending, 0) < 0 && errno == EINTR) {
    }
    if (WIFEXITED(ending)) {
        result.status = WEXITSTATUS(ending);
    } else if (WIFSIGNALED(ending)) {
        result.signal = WTERMSIG(ending);
    }
    return result;
}

} // namespace vernacle::test
