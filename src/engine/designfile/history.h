// The states of a design that undo and redo walk over. A state is the design's file text without
// its name and its date: what undo can bring back and what a file can hold are the same.
#pragma once

#include <cstddef>
#include <string>
#include <vector>

namespace vernacle {

struct DesignRecord;

std::string StateOf(const DesignRecord& design);

// The design takes that state; its file's name stays, and the scale that is worked on, if the
// state has it.
void RestoreState(DesignRecord& design, const std::string& state);

class History {
public:
    static constexpr std::size_t kSteps = 400; // that can be undone; older ones are forgotten

    // The design is another one: there is nothing to undo. isKept: a file holds it.
    void Start(std::string state, bool isKept);

    // The user did something: a step of that name, unless nothing changed. Steps with the same key
    // behind each other, the visit to one box, are one step; an empty key stands alone.
    void Record(std::string state, const std::string& name, const std::string& key);

    // What is recorded next is no longer the same visit.
    void EndVisit();

    // The program itself changed the design, as a page does that holds numbers to their limits:
    // no step, nothing to redo is lost, and what a file holds counts as held.
    void Absorb(std::string state);

    // A file holds the present state.
    void Keep() { kept_ = Present(); }
    bool IsKept() const { return kept_ == Present(); }

    std::size_t Count() const { return present_; } // that can be undone
    bool CanUndo() const { return present_ > 0; }
    bool CanRedo() const { return present_ + 1 < steps_.size(); }

    // What would be undone or redone; empty where nothing would.
    std::string UndoneName() const;
    std::string RedoneName() const;

    // One step back or forth, if there is one; gives the state that is present then.
    const std::string& Undo();
    const std::string& Redo();

    const std::string& Present() const { return steps_[present_].state; }

private:
    struct Step {
        std::string state; // behind it
        std::string name;
        std::string key;
    };

    std::vector<Step> steps_{1};
    std::size_t present_ = 0;
    std::string kept_;
    bool visitGoesOn_ = false;
};

} // namespace vernacle
