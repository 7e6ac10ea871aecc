#include <cerrno>
#include <cstdio>

#include <QCoreApplication>

#include "common/JsonText.h"
#include "common/Paths.h"
#include "facts/Facts.h"
#include "inspect/Capture.h"
#include "inspect/CaptureFile.h"
#include "inspect/CommandLine.h"
#include "inspect/Computer.h"
#include "inspect/DemoMachine.h"
#include "inspect/Follower.h"
#include "inspect/Inspection.h"
#include "inspect/Metrics.h"
#include "inspect/OwnComputer.h"
#include "inspect/TextReport.h"

namespace {

using namespace quindle;

constexpr int wrongUsage = 2;

void print(const QByteArray& bytes)
{
    std::fwrite(bytes.constData(), 1, static_cast<std::size_t>(bytes.size()), stdout);
    // At once: readers of a pipe wait for each line.
    std::fflush(stdout);
}

int refuse(const QString& line)
{
    // Lines name files, whose names need not be UTF-8.
    std::fprintf(stderr, "quindle-inspect: %s\n", pathBytes(line).constData());
    return wrongUsage;
}

int printJson(Computer& computer, bool isDemo)
{
    Inspection inspection(computer, isDemo);
    print(jsonText(inspection.takeState()) + '\n');
    for (std::size_t index = 0; index < computer.stepCount(); ++index) {
        inspection.playStep(index);
        print(jsonText(inspection.takeState()) + '\n');
    }
    return 0;
}

int printReport(Computer& computer, bool isDemo)
{
    Inspection inspection(computer, isDemo);
    const std::vector<Fact> facts = factsFor(FactPlace::Report, inspection.interface().factSources());
    print(reportText(inspection.takeState(), facts).toUtf8());
    return 0;
}

int printMetrics(Computer& computer, bool isDemo)
{
    print(metricsText(Inspection(computer, isDemo).mac()));
    return 0;
}

/// Later, because it may be asked for before the loop runs.
void quitLater()
{
    QMetaObject::invokeMethod(QCoreApplication::instance(), &QCoreApplication::quit, Qt::QueuedConnection);
}

/// Runs until the program is ended or nobody reads any more; neither is an error.
int follow(Computer& computer, const CommandLine& commandLine)
{
    const std::shared_ptr<void> end = whenToEnd(&quitLater);
    const Follower follower(computer, commandLine.demo, commandLine.format, [](const QByteArray& lines) {
        print(lines);
        if (!std::ferror(stdout))
            return;
        // A reader that has gone is the usual end, not a failure to report.
        if (errno == EPIPE)
            std::clearerr(stdout);
        quitLater();
    });
    return QCoreApplication::exec();
}

int capture(Computer& computer, const CommandLine& commandLine)
{
    // The demonstration is a model without a registry behind it, so its keys are made from the model.
    QVariantMap keys = commandLine.demo ? keysFromModel(Inspection(computer, true).mac())
                                        : capturedKeys(computer.platformToCapture());
    if (!commandLine.withSerials)
        keys = withoutIdentity(keys, computer.isMac() ? CapturedRegistry::OfAMac : CapturedRegistry::Other);
    const QString failure = writeMachineFile(commandLine.captureFile, keys);
    return failure.isEmpty() ? 0 : refuse(commandLine.captureFile + QStringLiteral(": ") + failure);
}

int inspect(const CommandLine& commandLine)
{
    auto opened = Computer::open(commandLine);
    if (const auto* refusal = std::get_if<MachineRefusal>(&opened))
        return refuse(refusal->line);
    Computer& computer = *std::get<std::unique_ptr<Computer>>(opened);
    switch (commandLine.call) {
    case CommandLine::Call::Json:
        return printJson(computer, commandLine.demo);
    case CommandLine::Call::Metrics:
        return printMetrics(computer, commandLine.demo);
    case CommandLine::Call::Follow:
        return follow(computer, commandLine);
    case CommandLine::Call::Capture:
        return capture(computer, commandLine);
    default:
        return printReport(computer, commandLine.demo);
    }
}

int answer(const CommandLine& commandLine)
{
    // Help and version need no computer, whose file might be refused.
    switch (commandLine.call) {
    case CommandLine::Call::Help:
        print(helpText().toUtf8());
        return 0;
    case CommandLine::Call::Version:
        print("quindle-inspect " QUINDLE_VERSION "\n");
        return 0;
    default:
        return inspect(commandLine);
    }
}

} // namespace

int main(int argc, char** argv)
{
    // First of all: serial numbers are read soon.
    keepOutOfCoreDumps();
    const QCoreApplication application(argc, argv);
    const CommandLine commandLine =
        parseCommandLine(argumentTexts(argc, argv), {.machineFile = pathText(qgetenv("QUINDLE_MACHINE")),
                                                     .sysfsDirectory = pathText(qgetenv("QUINDLE_SYSFS"))});
    if (!commandLine.fault.isEmpty())
        return refuse(commandLine.fault + QStringLiteral(" (see --help)"));
    const int status = answer(commandLine);
    // A full disk behind standard output shows only here.
    return std::ferror(stdout) ? refuse(QStringLiteral("cannot write to standard output")) : status;
}
