#include "desktop/system/onecopy.h"

#include <QDir>
#include <QLockFile>

#include "desktop/system/programfiles.h"
#include "engine/base/hostservices.h"

namespace vernacle {

// The lock goes with the process; one that a crash has left is told by its process's number.
void TellOfOtherCopy() {
    const QDir folder(QString::fromStdString(SystemFolders().userData));
    folder.mkpath(QStringLiteral("."));
    static QLockFile lock(folder.filePath(QStringLiteral("workshop.lock")));
    lock.setStaleLockTime(0);
    if (!lock.isLocked() && !lock.tryLock() && lock.error() == QLockFile::LockFailedError) {
        Host.informationBox("Another copy of the workshop is running.\nBoth can be worked with; of "
                            "a design that is open in both, what is saved last stays.");
    }
}

} // namespace vernacle
