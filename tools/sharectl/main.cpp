/*
 * Copyright (c) 2026 The libshare_client Authors.
 * Licensed under the Apache License, Version 2.0 (the "License");
 * you may not use this file except in compliance with the License.
 * You may obtain a copy of the License at
 *
 *     http://www.apache.org/licenses/LICENSE-2.0
 *
 * Unless required by applicable law or agreed to in writing, software
 * distributed under the License is distributed on an "AS IS" BASIS,
 * WITHOUT WARRANTIES OR CONDITIONS OF ANY KIND, either express or implied.
 * See the License for the specific language governing permissions and
 * limitations under the License.
 */

/*
 * sharectl: runs the share client library against the emulated share services, a whole session, a canned command
 * or any single operation, and tells what happened.
 */
#include <iostream>
#include <optional>
#include <string>
#include <unistd.h>
#include <vector>

#include "call_arguments.h"
#include "catalog_printer.h"
#include "command_line.h"
#include "commands.h"
#include "emulator_processes.h"
#include "hilog/log_threshold.h"
#include "processes_world.h"
#include "share_emulator.h"
#include "step_runner.h"
#include "trace_printer.h"
#include "usage_error.h"

namespace {
using namespace OHOS::Zelkon;

constexpr int EXIT_FAILED = 1;
constexpr int EXIT_USAGE = 2;
// --world -: the world is read from standard input.
constexpr const char* STANDARD_INPUT = "-";
constexpr const char* UNREADABLE_DUMP = "a service's state could not be read (the log says which and why)";

EmulatedWorld LoadWorld(const std::string& path)
{
    if (path.empty()) {
        return EmulatedWorld::BuiltIn();
    }
    std::string error;
    std::optional<EmulatedWorld> world =
        path == STANDARD_INPUT ? EmulatedWorld::FromStream(STDIN_FILENO, error) : EmulatedWorld::FromFile(path, error);
    if (!world) {
        throw UsageError("--world " + path + ": " + error);
    }
    return *world;
}

// Everything the command line asks for, checked before anything runs.
struct Invocation {
    CommandLine line;
    EmulatedWorld world;
    const Command* canned = nullptr;
    const Operation* operation = nullptr;
    std::optional<CallArguments> arguments;
};

Invocation Prepare(const CommandLine& line, Session& session)
{
    Invocation invocation{line, LoadWorld(line.worldFile), FindCommand(line.command), nullptr, std::nullopt};
    if (invocation.canned != nullptr && line.argument.has_value()) {
        invocation.canned->prepare(*line.argument, session);
    }
    if (line.command == DESCRIBE_COMMAND || line.command == CALL_COMMAND) {
        invocation.operation = &FindOperation(line.operation);
    }
    if (line.command == CALL_COMMAND) {
        invocation.arguments.emplace(*invocation.operation, line.callArguments);
    }
    return invocation;
}

void ShowJsonText(const std::string& text, Output& out)
{
    out.Line(text);
    out.Document() = nlohmann::ordered_json::parse(text);
}

// The exit status of the command.
int Run(const Invocation& invocation, Session& session, Output& out)
{
    const std::string& command = invocation.line.command;
    if (invocation.canned != nullptr) {
        return RunSteps(session, invocation.canned->steps, out) ? 0 : EXIT_FAILED;
    }
    if (command == LIST_COMMAND) {
        PrintOperationList(out);
    } else if (command == DESCRIBE_COMMAND) {
        PrintOperationDescription(*invocation.operation, out);
    } else if (command == CALL_COMMAND) {
        PrintCallOutcome(*invocation.operation, invocation.operation->call(*invocation.arguments, session.remotes),
                         out);
    } else if (command == WORLD_COMMAND) {
        ShowJsonText(invocation.world.ToJson(), out);
    } else if (command == DUMP_COMMAND) {
        const std::optional<std::string> state = ShareEmulator::DumpState();
        if (!state) {
            std::cerr << "sharectl: dump: " << UNREADABLE_DUMP << std::endl;
            return EXIT_FAILED;
        }
        ShowJsonText(*state, out);
    }
    return 0;
}

// sharectl serve: the manager and both services until SIGINT or SIGTERM.
int Serve(const CommandLine& line, const EmulatedWorld& world)
{
    EmulatorProcesses::Options options{line.socketPath, ProcessesWorld::ServiceExecutable(), world, line.faults};
    if (line.socketPath.empty() || !EmulatorProcesses::Serve(options)) {
        std::cerr << "sharectl: cannot serve at "
                  << (line.socketPath.empty() ? "the default socket: there is no private directory for it"
                                              : line.socketPath)
                  << std::endl;
        return EXIT_FAILED;
    }
    std::cout << "serving the share services at " << line.socketPath << " (share manager service in process "
              << ProcessesWorld::ServicePid(EMULATED_SHARE_MANAGER_ID)
              << "); join with: sharectl --processes ...; Ctrl-C stops" << std::endl;
    EmulatorProcesses::WaitUntilStopped(false);
    return 0;
}

// False when a service's state could not be read.
bool AddTraceAndState(const CommandLine& line, Session& session, Output& out)
{
    if (line.trace && out.IsJson()) {
        nlohmann::ordered_json& trace = out.Document()["trace"] = nlohmann::ordered_json::array();
        for (const DecodedRequest& request : session.requests.Since(0)) {
            trace.push_back(TraceJson(request));
        }
    }
    if (!line.dump) {
        return true;
    }
    const std::optional<std::string> state = ShareEmulator::DumpState();
    if (!state) {
        std::cerr << "sharectl: --dump: " << UNREADABLE_DUMP << std::endl;
        return false;
    }
    out.Line("emulator state:");
    out.Line(*state);
    out.Document()["emulatorState"] = nlohmann::ordered_json::parse(*state);
    return true;
}
} // namespace

int main(int argc, char* argv[])
{
    std::optional<CommandLine> line;
    std::optional<Invocation> invocation;
    std::unique_ptr<Session> session;
    try {
        line = ParseCommandLine(argc, argv);
        if (!line) {
            return 0;
        }
        session = std::make_unique<Session>(line->trace && !line->json);
        invocation.emplace(Prepare(*line, *session));
    } catch (const UsageError& error) {
        std::cerr << "sharectl: " << error.what() << "\nTry 'sharectl --help'." << std::endl;
        return EXIT_USAGE;
    }
    OHOS::HiviewDFX::HiLogSetThreshold(line->logLevel);
    if (line->command == SERVE_COMMAND) {
        return Serve(*line, invocation->world);
    }
    std::unique_ptr<ProcessesWorld> processes;
    if (line->processes) {
        try {
            processes = std::make_unique<ProcessesWorld>(*line, invocation->world);
        } catch (const UsageError& error) {
            std::cerr << "sharectl: " << error.what() << std::endl;
            return EXIT_USAGE;
        } catch (const std::runtime_error& error) {
            std::cerr << "sharectl: " << error.what() << std::endl;
            return EXIT_FAILED;
        }
    } else {
        ShareEmulator::Install(invocation->world);
        for (const EmulatorFault& fault : line->faults) {
            ShareEmulator::InjectFault(fault);
        }
    }
    Output out(line->json);
    ShareEmulator::SetTraceSink([&session](const DecodedRequest& request) { session->requests.Record(request); });
    int status = Run(*invocation, *session, out);
    if (!AddTraceAndState(*line, *session, out)) {
        status = EXIT_FAILED;
    }
    ShareEmulator::SetTraceSink(nullptr);
    if (!out.Finish()) {
        status = EXIT_FAILED;
    }
    return status;
}
