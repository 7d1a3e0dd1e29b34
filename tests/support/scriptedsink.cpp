#include "support/scriptedsink.h"

#include "engine/base/runtimeerror.h"

namespace vernacle::test {

namespace {

class ScriptedSink : public ByteSink {
public:
    explicit ScriptedSink(SinkScript& script) : script_(script) { ++script_.open; }
    ~ScriptedSink() override { --script_.open; }
    ScriptedSink(const ScriptedSink&) = delete;
    ScriptedSink& operator=(const ScriptedSink&) = delete;

    void Write(std::string_view bytes) override {
        if (++script_.writes == script_.failAtWrite) {
            throw FileFailure("the sink is full");
        }
        script_.bytes += bytes;
    }

    void Close() override {
        ++script_.closes;
        if (script_.failAtClose) {
            throw FileFailure("the sink is full");
        }
    }

private:
    SinkScript& script_;
};

} // namespace

std::unique_ptr<ByteSink> OpenScriptedSink(SinkScript& script) {
    return std::make_unique<ScriptedSink>(script);
}

} // namespace vernacle::test
