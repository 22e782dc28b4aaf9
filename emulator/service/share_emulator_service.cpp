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
 * share_emulator_service: the emulated share services in processes of their own.
 *   share_emulator_service ability ID [--world FILE] [--fault FAULT]...   one service, started by the manager
 *   share_emulator_service serve --socket PATH [--world FILE] [--fault FAULT]...
 *                                          the manager with both services, until its starter lets it go
 */
#include <cstdlib>
#include <string>
#include <vector>

#include <CLI/CLI.hpp>

#include "child_process.h"
#include "emulator_processes.h"
#include "iservice_registry.h"
#include "share_emulator.h"

namespace {
using namespace OHOS::Zelkon;

std::vector<EmulatorFault> ParseFaults(const std::vector<std::string>& texts)
{
    std::vector<EmulatorFault> faults;
    for (const std::string& text : texts) {
        std::string error;
        std::optional<EmulatorFault> fault = EmulatorFault::Parse(text, error);
        if (!fault) {
            throw CLI::ValidationError("--fault", error);
        }
        faults.push_back(*fault);
    }
    return faults;
}
} // namespace

int main(int argc, char* argv[])
{
    CLI::App app{"The emulated share services in processes of their own."};
    app.require_subcommand(1);
    int32_t systemAbilityId = 0;
    std::string worldFile;
    EmulatorProcesses::Options options;
    std::vector<std::string> faults;
    CLI::App* ability = app.add_subcommand("ability", "One service, as the system ability manager starts it.");
    ability->add_option("id", systemAbilityId, "The system ability id")
        ->required()
        ->check(CLI::IsMember({EMULATED_SHARE_SERVICE_ID, EMULATED_SHARE_MANAGER_ID}));
    CLI::App* serve = app.add_subcommand("serve", "The system ability manager with both services.");
    serve->add_option("--socket", options.socketPath, "The manager's socket")->required();
    for (CLI::App* command : {ability, serve}) {
        command->add_option("--world", worldFile, "A world file of the `sharectl world` schema");
        command->add_option("--fault", faults, "A fault to arm (repeatable)");
    }
    options.serviceExecutable = OHOS::ChildProcess::OwnExecutable();
    // Started ahead by the manager, the share service's process learns its command line when it is loaded. It meets
    // the manager while it waits, so that its load has no connection left to make to it.
    std::vector<std::string> arguments = OHOS::ChildProcess::Arguments(
        argc, argv, [] { OHOS::SystemAbilityManagerClient::GetInstance().GetSystemAbilityManager(); });
    std::vector<char*> argumentPointers;
    for (std::string& argument : arguments) {
        argumentPointers.push_back(argument.data());
    }
    try {
        app.parse(static_cast<int>(argumentPointers.size()), argumentPointers.data());
        options.faults = ParseFaults(faults);
    } catch (const CLI::ParseError& error) {
        return app.exit(error);
    }
    if (ability->parsed()) {
        std::_Exit(EmulatorProcesses::RunService(systemAbilityId, worldFile, options.faults));
    }
    std::string error;
    std::optional<EmulatedWorld> world =
        worldFile.empty() ? EmulatedWorld::BuiltIn() : EmulatedWorld::FromFile(worldFile, error);
    if (!world) {
        return app.exit(CLI::ValidationError("--world", error));
    }
    options.world = *world;
    if (!EmulatorProcesses::Serve(options)) {
        return EXIT_FAILURE;
    }
    // Unheard when the starter is gone already: then the wait ends at once, and the socket file goes with it.
    OHOS::ChildProcess::SayReady();
    EmulatorProcesses::WaitUntilStopped(true);
    std::_Exit(EXIT_SUCCESS);
}
