// Where the tree that is tested stands. One file knows it, so that no other need be compiled anew
// where the same tree stands elsewhere.
#pragma once

#include <string>

namespace vernacle::test {

// The full path of a file of the tree: SourcePath("examples/VOLTS-0-15.VRN").
std::string SourcePath(const std::string& name);

} // namespace vernacle::test
