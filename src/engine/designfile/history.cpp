#include "engine/designfile/history.h"

#include <algorithm>
#include <memory>

#include "engine/base/linereader.h"
#include "engine/core/design.h"
#include "engine/designfile/readwrite.h"

namespace vernacle {

std::string StateOf(const DesignRecord& design) {
    const auto unnamed = std::make_unique<DesignRecord>(design);
    unnamed->DesignFileName.clear();
    std::string text = DesignText(*unnamed);
    const std::size_t date = text.find(kLineEnd) + std::string_view(kLineEnd).size();
    text.replace(date, text.find(kLineEnd, date) - date, "-"); // a reader wants a line there
    return text;
}

void RestoreState(DesignRecord& design, const std::string& state) {
    ReadDesignText(design, state);
    const auto last = std::max<std::int16_t>(design.NumberOfScales, 1);
    design.ActiveScale = std::clamp<std::int16_t>(design.ActiveScale, 1, last);
}

void History::Start(std::string state, bool isKept) {
    steps_.clear();
    steps_.push_back({std::move(state), {}, {}});
    present_ = 0;
    kept_ = isKept ? Present() : std::string();
    visitGoesOn_ = false;
}

void History::Record(std::string state, const std::string& name, const std::string& key) {
    const bool isSameVisit =
        visitGoesOn_ && CanUndo() && !key.empty() && steps_[present_].key == key;
    visitGoesOn_ = isSameVisit;
    if (state == Present()) {
        return;
    }
    steps_.resize(present_ + 1);
    if (isSameVisit && state == steps_[present_ - 1].state) { // taken back by hand
        steps_.pop_back();
        --present_;
        return;
    }
    if (!isSameVisit) {
        steps_.push_back({{}, name, key});
        ++present_;
    }
    steps_[present_].state = std::move(state);
    visitGoesOn_ = true;
    if (steps_.size() > kSteps + 1) {
        steps_.erase(steps_.begin());
        --present_;
    }
}

void History::EndVisit() {
    visitGoesOn_ = false;
}

void History::Absorb(std::string state) {
    const bool wasKept = IsKept();
    steps_[present_].state = std::move(state);
    if (wasKept) {
        Keep();
    }
}

std::string History::UndoneName() const {
    return CanUndo() ? steps_[present_].name : std::string();
}

std::string History::RedoneName() const {
    return CanRedo() ? steps_[present_ + 1].name : std::string();
}

const std::string& History::Undo() {
    visitGoesOn_ = false;
    present_ -= CanUndo() ? 1 : 0;
    return Present();
}

const std::string& History::Redo() {
    visitGoesOn_ = false;
    present_ += CanRedo() ? 1 : 0;
    return Present();
}

} // namespace vernacle
