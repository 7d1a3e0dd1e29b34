// A display of its own with a window manager, and programs on it that are driven by keys from
// outside, as by a user.
#pragma once

#include <memory>
#include <optional>
#include <string>
#include <vector>

#include <sys/types.h>

namespace vernacle::test {

// A program that runs beside this one; what is left of it at the end is killed.
class BackgroundProgram {
public:
    // The first word is the program, looked for along the path if it has no slash; the environment
    // is beside what this process has. Its output goes nowhere.
    BackgroundProgram(const std::vector<std::string>& words,
                      const std::vector<std::string>& environment);
    ~BackgroundProgram();
    BackgroundProgram(const BackgroundProgram&) = delete;
    BackgroundProgram& operator=(const BackgroundProgram&) = delete;

    bool IsRunning();

    void Send(int signal) const;

    // The exit status once it has ended, minus the signal if one ended it; nothing if it is still
    // running after that time.
    std::optional<int> Wait(double seconds);

private:
    pid_t process_;
    std::optional<int> status_;
};

class Display {
public:
    // What of the programs that make a display is not installed; empty if all are there.
    static std::string Missing();

    // Throws std::runtime_error if the display does not come up.
    Display();

    // For the programs that run on it.
    std::vector<std::string> Environment() const;

    // Waits until a window with exactly that title has the focus; false if it does not come in
    // time.
    bool WaitForWindow(const std::string& title) const;
    std::string FocusedTitle() const;

    // As long as a user takes who looks at a page that has the same title again.
    static void Rest();

    // To the window that has the focus: keys by their names ("ctrl+1", "Tab"), and typed text.
    void Press(const std::string& keys, int times = 1) const;
    void Type(const std::string& text) const;

private:
    std::string Tool(const std::vector<std::string>& words) const; // gives its output

    std::string name_; // ":7"
    std::unique_ptr<BackgroundProgram> server_;
    std::unique_ptr<BackgroundProgram> manager_;
};

} // namespace vernacle::test
