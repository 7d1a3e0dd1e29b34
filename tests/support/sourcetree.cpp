#include "support/sourcetree.h"

namespace vernacle::test {

std::string SourcePath(const std::string& name) {
    return VERNACLE_SOURCE_DIR "/" + name;
}

} // namespace vernacle::test
