#include "desktop/pages/vernaclefile.h"

#include "desktop/system/dialogs.h"

namespace vernacle {

namespace {

FileQuestion QuestionOf(const char* title) {
    return {title, "Vernacle files (*.VRN)|*.VRN", "VRN"};
}

} // namespace

std::string AskForVernacleFile(QWidget* parent, const char* title) {
    return AskForFileToOpen(parent, QuestionOf(title));
}

std::string AskForNewVernacleFile(QWidget* parent, const char* title, const std::string& name) {
    return AskForFileToSave(parent, QuestionOf(title), name);
}

std::string AskForNewDesignFile(QWidget* parent, const char* title, const std::string& name) {
    return AskForNewFile(parent, QuestionOf(title), name);
}

} // namespace vernacle
