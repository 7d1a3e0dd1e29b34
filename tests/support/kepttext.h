// Texts that are kept beside the tests, in tests/data: how forms are laid out, what pictures mark.
// A change is looked at before it is kept; scripts/keep writes them anew.
#pragma once

#include <string>

#include <gtest/gtest.h>

namespace vernacle::test {

// Whether the text is the one kept in tests/data under that name; tells the first line that is not.
// With VERNACLE_KEEP_TEXTS in the environment it is kept instead.
::testing::AssertionResult IsAsKept(const std::string& name, const std::string& text);

} // namespace vernacle::test
