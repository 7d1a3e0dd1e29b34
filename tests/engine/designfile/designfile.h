// Design files written by hand, line by line, for the tests of the reader.
#pragma once

#include <string>
#include <vector>

namespace vernacle::test {

// The file of a plate with one standard scale, nothing deleted and every field at its default;
// tests replace, add and cut lines. Lines are found by their labels, the first one with that label
// unless an occurrence is told.
class DesignFile {
public:
    DesignFile();

    // Replaces what follows the label on its line.
    DesignFile& Set(const std::string& label, const std::string& value, int occurrence = 1);
    // Adds lines behind that line, or before it.
    DesignFile& AddBehind(const std::string& label, const std::vector<std::string>& added);
    DesignFile& AddBefore(const std::string& label, const std::vector<std::string>& added);
    // Makes the lines from one label's to just before the other's these.
    DesignFile& Replace(const std::string& first, const std::string& behind,
                        const std::vector<std::string>& by);
    // Ends the file behind that line.
    DesignFile& CutBehind(const std::string& label, int occurrence = 1);

    // All lines, each with its end.
    std::string Text(const std::string& lineEnd = "\r\n") const;

    std::vector<std::string> lines;

private:
    std::vector<std::string>::iterator Find(const std::string& label, int occurrence = 1);
};

// The block of a standard scale, with that title.
std::vector<std::string> StandardScaleBlock(const std::string& title);

// The block of a special scale with these tic lines.
std::vector<std::string> SpecialScaleBlock(const std::vector<std::string>& tics);

// Line after line with its end.
std::string Joined(const std::vector<std::string>& lines, const std::string& lineEnd = "\r\n");

} // namespace vernacle::test
