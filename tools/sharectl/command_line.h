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
 * What sharectl was asked to do: a command (the whole session when none is given), its arguments and the options.
 */
#ifndef COMMAND_LINE_H
#define COMMAND_LINE_H

#include <optional>
#include <string>
#include <vector>

#include "emulator_fault.h"
#include "hilog/log_c.h"

namespace OHOS {
namespace Zelkon {

// The commands beside the canned ones.
inline constexpr const char* LIST_COMMAND = "list";
inline constexpr const char* DESCRIBE_COMMAND = "describe";
inline constexpr const char* CALL_COMMAND = "call";
inline constexpr const char* WORLD_COMMAND = "world";
inline constexpr const char* DUMP_COMMAND = "dump";
inline constexpr const char* SERVE_COMMAND = "serve";

struct CommandLine {
    std::string command = "session";
    // A canned command's optional argument.
    std::optional<std::string> argument;
    // describe and call.
    std::string operation;
    // call: NAME=VALUE.
    std::vector<std::string> callArguments;
    std::string worldFile;
    std::vector<EmulatorFault> faults;
    bool trace = false;
    bool json = false;
    bool dump = false;
    // Each service in a process of its own, under the system ability manager at the socket or one of this run's.
    bool processes = false;
    // EmulatorProcesses::DefaultSocketPath() unless given; empty when there is no private directory for it.
    std::string socketPath;
    LogLevel logLevel = LOG_WARN;
};

// Throws UsageError; empty after printing the help that was asked for.
std::optional<CommandLine> ParseCommandLine(int argc, char* argv[]);

} // namespace Zelkon
} // namespace OHOS

#endif // COMMAND_LINE_H
