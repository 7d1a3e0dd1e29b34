// The question for a print queue, where there is more than one.
#pragma once

#include <optional>

#include "desktop/system/spool.h"

class QWidget;

namespace vernacle {

// The target of one raw job, titled by the design's name. Where there are several queues, and no
// printer's device, the dialog "dlgQueue" asks for one, the default one selected first; nothing
// after its cancel. The answer is not kept. A spooler that does not answer is in the target's
// failure.
std::optional<PrintTarget> AskForPrintTarget(QWidget* parent);

} // namespace vernacle
