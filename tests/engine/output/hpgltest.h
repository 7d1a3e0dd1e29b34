// What the tests of the plotter's stream share: a small plate whose corner is at (3900, 8340) in
// plotter units.
#pragma once

#include <string>

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

} // namespace vernacle::test
