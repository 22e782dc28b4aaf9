/*
 * sharectl: runs the share client library against the emulated share services, a whole session or single
 * operations, and tells step by step what happened.
 */
#include <iostream>

#include "command_line.h"
#include "commands.h"
#include "hilog/log_capture.h"
#include "share_emulator.h"
#include "step_runner.h"

namespace {
constexpr int EXIT_STEPS_FAILED = 1;
constexpr int EXIT_USAGE = 2;
} // namespace

int main(int argc, char* argv[])
{
    using namespace OHOS::Zelkon;
    const std::optional<CommandLine> line = ParseCommandLine(argc, argv);
    if (!line) {
        return EXIT_USAGE;
    }
    if (line->help) {
        std::cout << UsageText();
        return 0;
    }
    OHOS::HiviewDFX::HiLogSetThreshold(line->logLevel);
    Session session(line->trace);
    session.arguments = line->arguments;
    ShareEmulator::SetTraceSink([&session](const DecodedRequest& request) { session.requests.Record(request); });
    ShareEmulator::Install();
    const bool passed = RunSteps(session, FindCommand(line->command)->steps, std::cout);
    ShareEmulator::SetTraceSink(nullptr);
    return passed ? 0 : EXIT_STEPS_FAILED;
}
