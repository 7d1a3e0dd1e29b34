// The frame of the setup pages: how each is entered, previewed, accepted and left. Entering writes
// the design to "Backup.DAT", which is the only undo; a page's differences are a record of traits.
#pragma once

#include <functional>

#include "desktop/kit/form.h"

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
    const char* form = nullptr;
    const char* title = nullptr;
    const char* heading = nullptr;
    const char* acceptCaption = nullptr;
    const char* ignoreCaption = nullptr;
    const char* ignoreName = "cmdIgnore";
    unsigned computes = 0; // moments
    Marking marking = Marking::ByAccept;
    bool readsBack = false;              // a special scale fills the page at its load
    const char* acceptUnloads = nullptr; // that page; itself if null
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

    // Before the page computes for the preview or the accepting.
    virtual void CheckEntries(SetupMoment /*moment*/) {}

    virtual void ShowSetupPreview(); // cmdPreview
    virtual void AcceptSetup();      // cmdAccept

    // Computes, and reports an entry from which nothing can be computed; the page stays.
    void ComputeOrReport(const std::function<void()>& compute);

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

private:
    void IgnoreSetup();

    const SetupPageTraits& traits_;
    QLabel* lblWorking_;
    QPushButton* accept_ = nullptr;
    QPushButton* ignore_ = nullptr;
};

} // namespace vernacle
