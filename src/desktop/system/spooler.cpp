#include "desktop/system/spooler.h"

#include <thread>

#include <QProcess>
#include <QStandardPaths>

#include "desktop/system/patience.h"
#include "engine/base/runtimeerror.h"

namespace vernacle {

namespace {

using std::chrono::milliseconds;

constexpr milliseconds kTurn{5};
constexpr int kEndMs = 5000; // for a program that is killed

QString PathOf(const std::string& program) {
    return QStandardPaths::findExecutable(QString::fromStdString(program));
}

// Why the program that runs was not waited for any longer; empty if it ended.
std::string WaitForEnd(QProcess& process, milliseconds limit) {
    Patience patience(QStringLiteral("Waiting for the printer ..."));
    QElapsedTimer since;
    since.start();
    // Not by the process' own wait, which takes each of its short turns for an error.
    while (process.state() != QProcess::NotRunning) {
        if (!patience.Turn()) {
            return "cancelled";
        }
        if (since.hasExpired(limit.count())) {
            return "timed out";
        }
        std::this_thread::sleep_for(kTurn);
    }
    return "";
}

// Why a program that ended did not do its work; empty if it did.
std::string FailureOf(QProcess& process) {
    const QByteArray said = process.readAllStandardError().trimmed();
    if (process.exitStatus() == QProcess::NormalExit && process.exitCode() != 0) {
        return said.isEmpty() ? "exit status " + std::to_string(process.exitCode())
                              : QString::fromLocal8Bit(said).toStdString();
    }
    // It may also have ended well without reading all that it was given.
    return process.error() == QProcess::UnknownError ? "" : process.errorString().toStdString();
}

// The spooler's programs begin what they say with their path.
std::string WithName(const QProcess& process, std::string failure) {
    const std::string path = process.program().toStdString();
    const std::string name = path.substr(path.rfind('/') + 1) + ": ";
    if (failure.starts_with(path + ": ")) {
        failure.erase(0, path.size() + 2);
    }
    return failure.starts_with(name) ? failure : name + failure;
}

// Runs the process to its end; throws its failure.
void Run(QProcess& process, milliseconds limit) {
    std::string failure = WaitForEnd(process, limit);
    if (failure.empty()) {
        failure = FailureOf(process);
    } else {
        process.kill();
        process.waitForFinished(kEndMs);
    }
    if (!failure.empty()) {
        throw FileFailure(WithName(process, failure));
    }
}

} // namespace

std::string FindProgram(const std::string& name) {
    return PathOf(name).toStdString();
}

void SendJob(const SpoolJob& job, std::string_view bytes) {
    const QString program = PathOf(job.program);
    if (program.isEmpty()) {
        throw FileFailure(job.program + ": not found");
    }
    QStringList arguments;
    for (const std::string& argument : job.arguments) {
        arguments << QString::fromStdString(argument);
    }
    QProcess process;
    process.setStandardOutputFile(QProcess::nullDevice());
    process.start(program, arguments);
    process.write(bytes.data(), static_cast<qint64>(bytes.size()));
    process.closeWriteChannel();
    Run(process, job.limit);
}

// "-d" answers in a sentence, with the queue behind a colon, "-e" with a queue a line.
PrintQueues ReadQueues(const std::string& program, milliseconds limit) {
    const QString path = PathOf(program);
    if (path.isEmpty()) {
        return {};
    }
    QProcess process;
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(QStringLiteral("LC_ALL"), QStringLiteral("C"));
    process.setProcessEnvironment(environment);
    process.start(path, {QStringLiteral("-e"), QStringLiteral("-d")});
    Run(process, limit);
    PrintQueues queues;
    for (const QString& line : QString::fromLocal8Bit(process.readAllStandardOutput())
                                   .split(QLatin1Char('\n'), Qt::SkipEmptyParts)) {
        const qsizetype colon = line.indexOf(QStringLiteral(": "));
        if (colon >= 0) {
            queues.usual = line.mid(colon + 2).toStdString();
        } else if (!line.contains(QLatin1Char(' '))) {
            queues.names.push_back(line.toStdString());
        }
    }
    return queues;
}

} // namespace vernacle
