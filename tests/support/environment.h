// A variable of the environment, put back at the end of the scope.
#pragma once

#include <string>

#include <QByteArray>

namespace vernacle::test {

class EnvironmentVariable {
public:
    EnvironmentVariable(const char* name, const std::string& value)
        : name_(name), wasSet_(qEnvironmentVariableIsSet(name)), before_(qgetenv(name)) {
        qputenv(name, QByteArray::fromStdString(value));
    }
    ~EnvironmentVariable() { wasSet_ ? qputenv(name_, before_) : qunsetenv(name_); }
    EnvironmentVariable(const EnvironmentVariable&) = delete;
    EnvironmentVariable& operator=(const EnvironmentVariable&) = delete;

private:
    const char* name_;
    bool wasSet_;
    QByteArray before_;
};

} // namespace vernacle::test
