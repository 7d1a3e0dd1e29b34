#include "desktop/system/printqueues.h"

#include <algorithm>

#include <QInputDialog>

#include "desktop/system/printers.h"
#include "desktop/system/spooler.h"
#include "engine/base/runtimeerror.h"

namespace vernacle {

namespace {

// Empty after a cancel.
std::string AskForQueue(QWidget* parent, const PrintQueues& queues) {
    QStringList names;
    for (const std::string& name : queues.names) {
        names << QString::fromStdString(name);
    }
    QInputDialog dialog(parent);
    dialog.setObjectName(QStringLiteral("dlgQueue"));
    dialog.setWindowTitle(QStringLiteral("Send to PCL printer"));
    dialog.setLabelText(QStringLiteral("Print queue:"));
    dialog.setOkButtonText(QStringLiteral("Send"));
    dialog.setComboBoxItems(names);
    dialog.setTextValue(QString::fromStdString(queues.usual));
    return dialog.exec() == QDialog::Accepted ? dialog.textValue().toStdString() : std::string();
}

} // namespace

std::optional<PrintTarget> AskForPrintTarget(QWidget* parent) {
    PrintTarget target;
    target.title = DocumentName().toStdString();
    if (HasDevice(UsualPort())) {
        return target;
    }
    PrintQueues queues;
    try {
        queues = ReadQueues();
    } catch (const RunTimeError& failure) {
        target.failure = failure.what();
        return target;
    }
    if (queues.names.size() == 1) {
        target.queue = queues.names.front();
    } else if (queues.names.size() > 1) {
        target.queue = AskForQueue(parent, queues);
        return target.queue.empty() ? std::nullopt : std::optional(target);
    }
    return target;
}

} // namespace vernacle
