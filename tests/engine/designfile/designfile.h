// What the tests of design files share: files written by hand, line by line, and the fixture that
// writes and reads them.
#pragma once

#include "engine/core/fieldplace.h"
#include "support/enginetest.h"

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
    DesignFile& AddBehind(const std::string& label, const Texts& added);
    DesignFile& AddBefore(const std::string& label, const Texts& added);
    // Makes the lines from one label's to just before the other's these.
    DesignFile& Replace(const std::string& first, const std::string& behind, const Texts& by);
    // Ends the file behind that line.
    DesignFile& CutBehind(const std::string& label, int occurrence = 1);

    // All lines, each with its end.
    std::string Text(const std::string& lineEnd = "\r\n") const;

    Texts lines;

private:
    Texts::iterator Find(const std::string& label, int occurrence = 1);
};

// The block of a standard scale, with that title.
Texts StandardScaleBlock(const std::string& title);

// The block of a special scale with these tic lines.
Texts SpecialScaleBlock(const Texts& tics);

// Line after line with its end.
std::string Joined(const Texts& lines, const std::string& lineEnd = "\r\n");

// What is said of a file that cannot be written, and of one that cannot be read, less the stage.
inline const Texts kNotWritten = {
    "beep", "failure: The Vernacle file was not written correctly.\nReadWrite 364"};
inline const std::string kNotRead =
    "failure: We were not successful in reading that Vernacle file.\n"
    "Default values for all items have been put in place.\n\n"
    "ReadWrite ";

class DesignFileTest : public NewDesignTest {
protected:
    // The design as the program writes it to "plate.vrn", which is its name then.
    std::string Written();

    // Reads the file into an empty design.
    void Read(const DesignFile& file);
};

using Getter = std::string (*)();

// A field of the design, or an entry of one, as a text.
template <auto Field, int Outer = 0, int Inner = 0>
std::string Of() {
    return PlainText(At<Field>.In(Design, Outer, Inner));
}

// The answers and the text of a special tic: "label|tic|major|text".
std::string TicFields(int scale, int tic);

} // namespace vernacle::test
