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

#include "call_arguments.h"

#include "usage_error.h"

namespace OHOS {
namespace Zelkon {
namespace {
std::string ArgumentNames(const Operation& operation)
{
    std::string names;
    for (const Argument& argument : operation.arguments) {
        names += (names.empty() ? "" : ", ") + argument.name;
    }
    return names.empty() ? "none" : names;
}

const Argument& FindArgument(const Operation& operation, const std::string& name)
{
    for (const Argument& argument : operation.arguments) {
        if (name == argument.name) {
            return argument;
        }
    }
    throw UsageError(std::string(operation.name) + " has no argument '" + name +
                     "' (its arguments: " + ArgumentNames(operation) + ")");
}
} // namespace

CallArguments::CallArguments(const Operation& operation, const std::vector<std::string>& texts)
{
    for (const std::string& text : texts) {
        const size_t equals = text.find('=');
        if (equals == std::string::npos) {
            throw UsageError("'" + text + "' is not NAME=VALUE (the arguments of " + operation.name + ": " +
                             ArgumentNames(operation) + ")");
        }
        const std::string name = text.substr(0, equals);
        const Argument& argument = FindArgument(operation, name);
        if (values_.count(name) != 0) {
            throw UsageError(name + " is given twice");
        }
        if (argument.localStub) {
            throw UsageError(name + " is a local " + argument.type + " that sharectl creates: it takes no value");
        }
        values_[name] = argument.read(text.substr(equals + 1), name);
    }
}

} // namespace Zelkon
} // namespace OHOS
