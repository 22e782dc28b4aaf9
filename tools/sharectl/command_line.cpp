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

#include "command_line.h"

#include <iostream>
#include <map>

#include <CLI/CLI.hpp>

#include "commands.h"
#include "emulator_processes.h"
#include "usage_error.h"

namespace OHOS {
namespace Zelkon {
namespace {
const std::map<std::string, LogLevel> LOG_LEVELS{
    {"debug", LOG_DEBUG}, {"info", LOG_INFO}, {"warn", LOG_WARN}, {"error", LOG_ERROR}};

std::string Footer()
{
    return std::string("\nFaults (--fault FAULT, repeatable; each plays once):\n") + EmulatorFault::GRAMMAR +
           "\nExit status: 0 when the command did what it should (every step passed, the call was made), 1 when a\n"
           "step failed or the output could not be written, 2 for a usage error (nothing was run).\n"
           "\nExamples:\n"
           "  sharectl list\n"
           "  sharectl describe manager.Cancel\n"
           "  sharectl call RemovePermanentDeviceById id=2\n"
           "  sharectl call PrepareSend deviceInfo='{\"deviceId\":\"dev-1001-phone\"}'\n"
           "  sharectl --fault die-in:26 call GetPermanentDeviceList\n"
           "  sharectl world > world.json && sharectl --world world.json users\n"
           "  sharectl serve    # and in another shell: sharectl --processes remove-device 2; sharectl dump\n";
}

// Only one command runs, so the canned commands' arguments share one string.
void AddCannedCommands(CLI::App& app, std::string& argument)
{
    for (const Command& command : Commands()) {
        CLI::App* sub = app.add_subcommand(command.name, command.description);
        if (command.argumentName != nullptr) {
            sub->add_option(command.argumentName, argument, command.description)->type_name("");
        }
    }
}

void AddToolCommands(CLI::App& app, CommandLine& line)
{
    app.add_subcommand(LIST_COMMAND, "list every operation of both services: service, request code, name");
    app.add_subcommand(DESCRIBE_COMMAND, "an operation's arguments with their types, its request and reply")
        ->add_option("OPERATION", line.operation, "as list names it")
        ->required();
    CLI::App* call = app.add_subcommand(CALL_COMMAND, "call an operation through the library and decode its result");
    call->add_option("OPERATION", line.operation, "as list names it")->required();
    call->add_option("ARGUMENTS", line.callArguments,
                     "NAME=VALUE, named as describe shows them; records as JSON; left out: 0, false, empty");
    app.add_subcommand(WORLD_COMMAND, "print the emulator's world as JSON: the built-in one, or --world's");
    app.add_subcommand(DUMP_COMMAND, "print each emulated service's state as JSON");
    app.add_subcommand(SERVE_COMMAND, "run the system ability manager with both services in processes of their own, "
                                      "until interrupted; --processes runs join it");
}
} // namespace

std::optional<CommandLine> ParseCommandLine(int argc, char* argv[])
{
    CommandLine line;
    CLI::App app("Drives the share client library against emulated share services: a whole sharing session by\n"
                 "default, a short canned command, or any of the 62 operations of both services with chosen\n"
                 "arguments. The share service is loaded on demand, as on a device; the share manager service runs.",
                 "sharectl");
    app.footer(Footer());
    app.get_formatter()->label("SUBCOMMAND", "COMMAND");
    // Options may come after the command too.
    app.fallthrough();
    app.require_subcommand(0, 1);
    std::string logLevel = "warn";
    std::vector<std::string> faults;
    std::string cannedArgument;
    app.add_flag("--trace", line.trace, "print every request and reply as decoded fields beside their bytes");
    app.add_flag("--json", line.json, "print the result as one JSON document, for scripts");
    app.add_flag("--dump", line.dump, "print each emulated service's state after the command");
    app.add_option("--log-level", logLevel, "log lines shown on stderr: debug (all), info, warn (the default), error")
        ->check(CLI::IsMember({"debug", "info", "warn", "error"}))
        ->type_name("LEVEL");
    app.add_option("--world", line.worldFile, "start the emulator from this world file (the schema of 'world')")
        ->type_name("FILE");
    app.add_flag("--processes", line.processes,
                 "each service in a process of its own: join the 'serve' at --socket, or start one for this run");
    app.add_option("--socket", line.socketPath,
                   "the socket of the system ability manager of 'serve' and --processes (default: share-emulator.sock "
                   "in the user's private runtime directory)")
        ->type_name("PATH");
    app.add_option("--fault", faults, "inject a fault (see below); repeatable")
        ->allow_extra_args(false)
        ->type_name("FAULT");
    AddCannedCommands(app, cannedArgument);
    AddToolCommands(app, line);
    try {
        app.parse(argc, argv);
    } catch (const CLI::CallForHelp&) {
        std::cout << app.help();
        return std::nullopt;
    } catch (const CLI::ParseError& error) {
        throw UsageError(error.what());
    }
    if (!app.get_subcommands().empty()) {
        const CLI::App* command = app.get_subcommands().front();
        line.command = command->get_name();
        const Command* canned = FindCommand(line.command);
        if (canned != nullptr && canned->argumentName != nullptr &&
            command->get_option(canned->argumentName)->count() > 0) {
            line.argument = cannedArgument;
        }
    }
    line.logLevel = LOG_LEVELS.at(logLevel);
    for (const std::string& text : faults) {
        std::string error;
        const std::optional<EmulatorFault> fault = EmulatorFault::Parse(text, error);
        if (!fault) {
            throw UsageError("--fault: " + error);
        }
        line.faults.push_back(*fault);
    }
    // Only a run that uses the socket makes the private directory for it.
    if (line.socketPath.empty() && (line.processes || line.command == SERVE_COMMAND)) {
        line.socketPath = EmulatorProcesses::DefaultSocketPath();
    }
    return line;
}

} // namespace Zelkon
} // namespace OHOS
