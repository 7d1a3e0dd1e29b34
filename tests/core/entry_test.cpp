#include "core/entry.h"

#include "core/design.h"
#include "support/enginetest.h"

namespace vernacle::test {
namespace {

class EntryTest : public EngineTest {};

TEST_F(EntryTest, AcceptsForgivingNumbers) {
    std::string text = "2k2";
    float value = 0;
    ParseEntry(text, value);
    EXPECT_EQ(value, 2000);
}

} // namespace
} // namespace vernacle::test
