// Runs a built program without a display.
#include "RunProgram.h"

Outcome RunProgram(const std::string& program, const std::vector<std::string>& arguments) {
    constexpr int MostMilliseconds = 60000;
    const QTemporaryDir home;
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    for (const char* name : {"DISPLAY", "WAYLAND_DISPLAY", "QT_QPA_PLATFORM", "ZOLTO_HOME"})
        environment.remove(name);
    for (const char* name : {"HOME", "XDG_CONFIG_HOME", "XDG_DATA_HOME", "XDG_RUNTIME_DIR"})
        environment.insert(name, home.path());
    QProcess process;
    process.setProcessEnvironment(environment);
    QStringList list;
    for (const std::string& argument : arguments) list << QString::fromStdString(argument);
    process.start(QString::fromStdString(program), list);
    Outcome outcome;
    if (process.waitForFinished(MostMilliseconds) && process.exitStatus() == QProcess::NormalExit)
        outcome.status = process.exitCode();
    outcome.output = process.readAllStandardOutput().toStdString();
    outcome.errors = process.readAllStandardError().toStdString();
    return outcome;
}
