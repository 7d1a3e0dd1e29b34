// The frame of the setup pages: how each is entered, previewed, accepted and left. Entering keeps
// the design for whoever ignores, in the everyday program by writing it to "Backup.DAT"; a page's
// differences are a record of traits.
#pragma once

#include <functional>
#include <memory>
#include <string>

#include "desktop/kit/form.h"
#include "engine/setups/setupkind.h"

class QBoxLayout;
class QLabel;
class QPushButton;

namespace vernacle {

class EntryBox;
class Field;
class OptionButton;

// When a page computes its tics, beside its own controls. Values are added.
enum SetupMoment : unsigned { kAtLoad = 1, kAtPreview = 2, kAtAccept = 4 };

enum class Marking {
    ByAccept,
    ByComputing, // the page's own routine marks the scale
};

struct SetupPageTraits {
    const SetupKind& kind;
    const char* form = nullptr;
    const char* title = nullptr;
    const char* heading = nullptr;
    const char* acceptCaption = nullptr;
    const char* ignoreCaption = nullptr;
    const char* ignoreName = "cmdIgnore";
    unsigned computes = 0;          // moments
    unsigned computesInService = 0; // more of them, where special scales are in service
    Marking marking = Marking::ByAccept;
    bool readsBack = false;              // a special scale fills the page at its load
    const char* acceptUnloads = nullptr; // that page, in the everyday program; itself if null
};

class SetupPage : public Page {
    Q_OBJECT

protected:
    // The traits must outlive the page.
    explicit SetupPage(const SetupPageTraits& traits);

    // Ends the load, once the controls stand: backs the design up, names the scale, fills the page
    // and computes, as the traits say.
    void EnterSetup();

    virtual void ReadBack() {}   // from a special scale's tables
    virtual void StartAnew() {}  // on any other scale, or where nothing is read back
    virtual void ShowStored() {} // behind either
    virtual void Compute() {}

    // Before the page computes for the preview or the accepting. False, once it is reported, where
    // nothing shall come of them; then the page stays as it is.
    virtual bool CheckEntries(SetupMoment /*moment*/) { return true; }

    virtual void ShowSetupPreview(); // cmdPreview
    virtual bool AcceptSetup();      // cmdAccept; false where it is refused

    // Computes, and reports an entry from which nothing can be computed; false then, and the page
    // stays.
    static bool ComputeOrReport(const std::function<void()>& compute);

    // The same of what the page stores in the design; the scale is of its kind then.
    bool StoreOrReport(const std::function<void()>& compute);

    void CloseBoxClicked() override;

    QPushButton* MakePreview();
    QPushButton* MakeAccept();
    QPushButton* MakeIgnore();

    // Once they are made.
    QPushButton& Accept() { return *accept_; }
    QPushButton& Ignore() { return *ignore_; }

    // Where the page's own parts stand, below its heading.
    using Page::Body;

    static int Scale(); // the one that is being set up

    // What special scales in service ask of a page's boxes: a label takes no separator of a design
    // file, a number no more characters than are read.
    static void GuardLabel(EntryBox& box);
    static void GuardNumber(EntryBox& box);

    void RememberKind(); // where special scales are in service

    // Whether the page came up with tics that the scale had.
    bool HasReadBack() const { return hasReadBack_; }

private:
    void KeepDesign();
    bool ReadsBack() const;
    bool ComputeAt(SetupMoment moment);
    void IgnoreSetup();

    const SetupPageTraits& traits_;
    std::unique_ptr<const DesignRecord> before_; // where no file keeps it
    bool hasReadBack_ = false;
    QLabel* lblWorking_;
    QPushButton* accept_ = nullptr;
    QPushButton* ignore_ = nullptr;
};

} // namespace vernacle
