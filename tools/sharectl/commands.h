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
 * The canned commands of sharectl, short forms of a few calls with checks: each one is a list of steps; "session"
 * runs them all.
 */
#ifndef COMMANDS_H
#define COMMANDS_H

#include <string>
#include <vector>

#include "session.h"

namespace OHOS {
namespace Zelkon {

struct Command {
    const char* name;
    const char* description;
    std::vector<Step> steps;
    // The name of the command's one optional argument; null when it takes none.
    const char* argumentName = nullptr;
    // Puts the argument into the session before anything runs; throws UsageError when it makes no sense.
    void (*prepare)(const std::string& argument, Session& session) = nullptr;
};

const std::vector<Command>& Commands();
// Null for a name that is no canned command.
const Command* FindCommand(const std::string& name);

} // namespace Zelkon
} // namespace OHOS

#endif // COMMANDS_H
