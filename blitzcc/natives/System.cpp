// The commands on the console, time and the program itself.
// Whatever waits first shows what was printed so far.
#include "natives/Natives.h"

#include <chrono>
#include <cstdlib>
#include <ctime>
#include <thread>

namespace blitz {
namespace {

using Args = const Value*;

Value sysPrint(Machine& m, Args a, size_t) {
    m.output().line(Machine::text(a[0]));
    return intValue(0);
}

Value sysWrite(Machine& m, Args a, size_t) {
    m.output().write(Machine::text(a[0]));
    return intValue(0);
}

Value sysInput(Machine& m, Args a, size_t) {
    m.output().write(Machine::text(a[0]));
    m.output().flush();
    std::string line;
    for (int c = std::getchar(); c != EOF && c != '\n'; c = std::getchar())
        line.push_back(static_cast<char>(c));
    if (!line.empty() && line.back() == '\r') line.pop_back();
    return m.makeString(std::move(line));
}

Value sysWaitKey(Machine& m, Args, size_t) {
    m.output().flush();
    const int c = std::getchar();
    return intValue(c == EOF ? 0 : c);
}

Value sysDelay(Machine& m, Args a, size_t) {
    m.output().flush();
    if (a[0].integer > 0) std::this_thread::sleep_for(std::chrono::milliseconds(a[0].integer));
    return intValue(0);
}

Value sysMilliSecs(Machine&, Args, size_t) {
    const auto now = std::chrono::steady_clock::now().time_since_epoch();
    return intValue(static_cast<int32_t>(std::chrono::duration_cast<std::chrono::milliseconds>(now).count()));
}

Value timeText(Machine& m, const char* form) {
    const std::time_t now = std::time(nullptr);
    std::tm local{};
    localtime_r(&now, &local);
    char text[64];
    text[0] = '\0';
    if (std::strftime(text, sizeof text, form, &local) == 0) text[0] = '\0';
    return m.makeString(text);
}

Value sysDate(Machine& m, Args, size_t) { return timeText(m, "%d %b %Y"); }
Value sysTime(Machine& m, Args, size_t) { return timeText(m, "%H:%M:%S"); }

Value sysRuntimeError(Machine&, Args a, size_t) { fault(Machine::text(a[0])); }
Value sysCommandLine(Machine& m, Args, size_t) { return m.makeString(m.options().arguments); }
Value sysNothing(Machine&, Args, size_t) { return intValue(0); }

Value sysDebugLog(Machine& m, Args a, size_t) {
    if (m.options().debug) m.output().line(Machine::text(a[0]));
    return intValue(0);
}

Value sysGetEnv(Machine& m, Args a, size_t) {
    const char* const value = std::getenv(Machine::text(a[0]).c_str());
    return m.makeString(value ? value : "");
}

Value sysSetEnv(Machine&, Args a, size_t) {
    setenv(Machine::text(a[0]).c_str(), Machine::text(a[1]).c_str(), 1);
    return intValue(0);
}

Value sysProperty(Machine& m, Args a, size_t) {
    const std::string& name = Machine::text(a[0]);
    if (name == "appdir") return m.makeString(m.options().programFolder);
    if (name == "tempdir") return m.makeString("/tmp/");
    return m.makeString("");
}

Value sysExecFile(Machine&, Args, size_t) { fault("ExecFile is not supported"); }

constexpr NativeEntry entries[] = {
    {"Print", sysPrint},
    {"Write", sysWrite},
    {"Input", sysInput},
    {"WaitKey", sysWaitKey},
    {"Delay", sysDelay},
    {"MilliSecs", sysMilliSecs},
    {"CurrentDate", sysDate},
    {"CurrentTime", sysTime},
    {"RuntimeError", sysRuntimeError},
    {"CommandLine", sysCommandLine},
    {"AppTitle", sysNothing},
    {"DebugLog", sysDebugLog},
    {"GetEnv", sysGetEnv},
    {"SetEnv", sysSetEnv},
    {"SystemProperty", sysProperty},
    {"ExecFile", sysExecFile},
};

}

NativeTable systemNatives() { return {entries, std::size(entries)}; }

}
