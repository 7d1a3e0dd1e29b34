#include "hpgltest.h"

#include <algorithm>
#include <cmath>

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

std::string Move(const char* word, double x, double y) {
    std::string statement = word;
    for (const double unit : {x, y}) {
        const int whole = static_cast<int>(std::floor(unit + 0.5));
        statement += (whole < 0 ? "" : " ") + std::to_string(whole) + " ";
    }
    return statement;
}

Calls RulerStatements(int corner, int lastMm, int lineEnd, int unitAt) {
    const auto tics = [&](int everyMm, int height) {
        Calls lines;
        for (int mm = 0; mm <= lastMm; mm += everyMm) {
            lines.push_back(Move("PU", corner + 40 * mm, 7960));
            lines.push_back(Move("PD", corner + 40 * mm, 7960 + height));
        }
        return lines;
    };
    Calls numbers;
    for (int mm = 0; mm <= lastMm; mm += 10) {
        numbers.push_back(Move("PU", corner + 40 * mm, 7875));
        numbers.push_back("LB" + std::to_string(mm) + "\x03");
    }
    return Calls{"PW.5"} + tics(10, 100) + Calls{"LO5", "SI.15,.2;"} + numbers +
           Calls{"PW.2", "SI.15,.2;"} + tics(1, 50) +
           Calls{Move("PU", corner, 7960), Move("PD", lineEnd, 7960), Move("PU", unitAt, 7840),
                 "LO"};
}

} // namespace vernacle::test
