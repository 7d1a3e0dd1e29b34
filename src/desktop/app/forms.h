// The register of the program's forms: one row a form. A new page joins the program here.
#pragma once

#include <span>

#include "desktop/navigation/navigator.h"

namespace vernacle {

std::span<const FormRow> ProgramForms();

} // namespace vernacle
