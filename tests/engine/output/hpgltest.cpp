#include "hpgltest.h"

#include <algorithm>

namespace vernacle::test {

HpglTest::HpglTest() {
    Design.MajorEveryHowMany[1] = 2;
    Design.LabelsEveryHowMany[1] = 2;
    GiveTics(1, 2);
    Design.FontSize = 5;
    Design.DesignFileName = "plate.vrn";
}

std::string HpglTest::Stream(HpglMode mode) {
    SinkScript script;
    WriteHpglStream(Design, *OpenScriptedSink(script), mode);
    return script.bytes;
}

Calls HpglTest::Statements() {
    Calls statements;
    const std::string stream = Stream();
    std::size_t start = 0;
    for (auto end = stream.find("\r\n"); end != stream.npos; end = stream.find("\r\n", start)) {
        statements.push_back(stream.substr(start, end - start));
        start = end + 2;
    }
    return statements;
}

int HpglTest::CountOf(const std::string& statement) {
    const Calls statements = Statements();
    return static_cast<int>(std::count(statements.begin(), statements.end(), statement));
}

bool HpglTest::HasText(const std::string& text) {
    return CountOf("LB" + text + "\x03") > 0;
}

} // namespace vernacle::test
