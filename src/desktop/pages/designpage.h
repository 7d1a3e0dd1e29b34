// What the six design pages share: title, toolbar, close box. A page's differences are a small
// record of traits.
#pragma once

#include <span>
#include <string>

#include "desktop/kit/form.h"

class QAction;

namespace vernacle {

// A tool tip in which a page differs from the others.
struct OwnTip {
    const char* key;
    const char* tip;
};

enum class Printing {
    Offered,
    Greyed,       // prints, if its key is ever enabled
    GreyedAndDead // does nothing
};

enum class CloseBox { SavesSession, JustEnds };

struct PageTraits {
    const char* form;
    const char* title; // behind "Vernacle - "
    const char* helpTopic;
    Printing printing = Printing::Greyed;
    CloseBox closeBox = CloseBox::SavesSession;
    std::span<const OwnTip> ownTips = {};
};

class DesignPage : public Page {
    Q_OBJECT

public:
    bool KeepsSession() const override;
    bool TakesSteps() const override;

protected:
    // The traits must outlive the page.
    explicit DesignPage(const PageTraits& traits);

    void CloseBoxClicked() override;

    // The title with the design's name, as it is now.
    void ShowTitle();

    // An open help book keeps to the page.
    void showEvent(QShowEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

    // Runs at the head of every key of the toolbar.
    virtual void BeforeKey() {}

private:
    struct Key;
    static const Key kKeys[];

    void AddToolbar();
    void KeyClicked(const Key& key);
    void FollowKey(const Key& key);
    void ShowDocument(); // in its title and its keys
    void ShowAnew();

    void NewClicked();
    void UndoClicked();
    void RedoClicked();
    void OpenClicked();
    void SaveClicked();
    void PrintClicked();
    void HelpClicked();
    void ExitClicked();
    void AboutClicked();

    const PageTraits& traits_;
    QAction* undo_ = nullptr; // where it is in service, as the next
    QAction* redo_ = nullptr;
};

} // namespace vernacle
