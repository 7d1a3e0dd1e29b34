// The design as a document of its user: the steps that can be undone, and whether a file holds it.
#pragma once

#include <QObject>

#include "engine/designfile/history.h"

namespace vernacle {

class OpenDocument : public QObject {
    Q_OBJECT

public:
    // The design is another one, which a file holds or not. There is nothing to undo.
    void Start(bool isKept);

    // The user has visited that control: what has changed in the design is a step of that name.
    // Visits with the same key behind each other are one; an empty key stands alone.
    void Visit(const std::string& name, const std::string& key);

    // What has changed since belongs to the last visit.
    void Commit() { Visit(name_, key_); }
    void EndVisit() { history_.EndVisit(); }

    // A page that came up has changed the design by itself.
    void Absorb();

    // A file holds the design as it is.
    void Keep();
    bool IsKept() const { return history_.IsKept(); }

    // The design as it was before the last step, or behind the next one.
    void Undo();
    void Redo();

    const History& Steps() const { return history_; }

Q_SIGNALS:
    void Changed(); // what one of the above tells of it

private:
    History history_;
    std::string name_; // of the last visit
    std::string key_;
};

// The one of this process.
OpenDocument& Document();

} // namespace vernacle
