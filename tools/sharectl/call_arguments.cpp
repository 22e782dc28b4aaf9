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

#include "argument_types.h"
#include "strict_values.h"
#include "usage_error.h"

namespace OHOS {
namespace Zelkon {
namespace {
std::string ArgumentNames(const Operation& operation)
{
    std::string names;
    for (const Argument& argument : operation.arguments) {
        names += (names.empty() ? "" : ", ") + std::string(argument.name);
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

nlohmann::json ReadValue(const Argument& argument, const std::string& text)
{
    const std::string name = argument.name;
    switch (argument.type) {
    case ArgumentType::INT32:
        return RequireInteger<int32_t>(text, name);
    case ArgumentType::UINT32:
        return RequireInteger<uint32_t>(text, name);
    case ArgumentType::BOOL:
        return RequireBool(text, name);
    case ArgumentType::STRING:
        return text;
    case ArgumentType::LOCAL_STUB:
        throw UsageError(name + " is a local " + argument.interfaceName + " that sharectl creates: it takes no value");
    default:
        break;
    }
    try {
        nlohmann::json json = ParseJsonText(text);
        ForRecordType(argument.type, [&json, &name](auto record) { JsonFieldReader::Read(json, name, record); });
        return json;
    } catch (const JsonFieldError& error) {
        const std::string what = error.what();
        throw UsageError(what.rfind(name, 0) == 0 ? what : name + ": " + what);
    }
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
        values_[name] = ReadValue(argument, text.substr(equals + 1));
    }
}

} // namespace Zelkon
} // namespace OHOS
