// What the tests of the plotter's stream share: a small plate whose corner is at (3900, 8340) in
// plotter units.
#pragma once

#include "engine/output/hpgl.h"
#include "support/rendertest.h"
#include "support/scriptedsink.h"

namespace vernacle::test {

class HpglTest : public RenderTest {
protected:
    HpglTest();

    // The whole stream, and its statements without their ends.
    static std::string Stream(HpglMode mode = HpglMode::File);
    static Calls Statements();

    // How often a statement stands in the stream.
    static int CountOf(const std::string& statement);
    static bool HasText(const std::string& text); // as a label
};

// The statement that moves the pen, up ("PU") or down ("PD"), to the unit next to that place.
std::string Move(const char* word, double x, double y);

// Those of the ruler of a plate whose corner is there, and so far across its line's end and unit.
Calls RulerStatements(int corner, int lastMm, int lineEnd, int unitAt);

} // namespace vernacle::test
