// The lines of a design file in their order: the one table that its writer and its reader walk.
#pragma once

#include <string_view>

#include "engine/core/design.h"
#include "engine/core/service.h"
#include "engine/designfile/linevalues.h"

namespace vernacle {

// What writing a line, and what reading one, does to the design besides.
using WritingStep = void (*)(DesignRecord& design, LinePlace place);
using ReadingStep = void (*)(DesignRecord& design);

// A step that is left out where a member is in service, or taken only where one is.
struct AfterReading {
    ReadingStep take = nullptr;
    LiftedBy liftedBy = nullptr;
    LiftedBy takenWith = nullptr;

    bool IsDue(const ServiceState& service) const {
        return take && !(liftedBy && service.*liftedBy) && !(takenWith && !(service.*takenWith));
    }
};

// One line of the file, or, without a label and a way to read, one step between lines.
struct FileLine {
    const char* label = nullptr; // "%" stands for the number of the scale, the text or the point
    WriteValue write = nullptr;
    FieldPlace place = Nowhere;
    ReadValue read = nullptr;       // none: the reader takes no line
    int stage = 0;                  // what the reader's failure message quotes
    AfterReading afterReading = {}; // what is forced, whatever the line said
    WritingStep beforeWriting = nullptr;
    WritingStep afterWriting = nullptr;
    LiftedBy standsWith = nullptr; // only where this is in service; none: always
};

// Whether a row stands before the blocks of the scales.
bool IsOfHead(const FileLine& line);

// Whether a line of a file begins with the label of some line of the head; one without an end may
// have lost a part of it.
bool LooksLikeHead(std::string_view item, bool isEnded);

// Goes through the lines of a design file in their order. The loops over its blocks run by the
// counts that the design holds when each is reached, so that a reader may fill them on the way.
class FileWalker {
public:
    explicit FileWalker(const DesignRecord& design) : design_(design) {}
    virtual ~FileWalker() = default;
    void Walk();

private:
    virtual void Visit(const FileLine& line, LinePlace place) = 0;

    template <std::size_t Count>
    void VisitAll(const FileLine (&lines)[Count], LinePlace place = {});
    void WalkScale(int scale);
    void WalkDeletions();
    void WalkPerScale(const FileLine& heading, const FileLine& line);

    const DesignRecord& design_;
};

} // namespace vernacle
