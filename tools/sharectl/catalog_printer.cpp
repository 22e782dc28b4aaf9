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

#include "catalog_printer.h"

#include <cstdio>

#include "share_emulator.h"

namespace OHOS {
namespace Zelkon {
namespace {
constexpr int INDENT = 2;
// A result longer than this, or of several lines, is shown under the line that names it.
constexpr size_t INLINE_LENGTH = 80;

std::string Dumped(const nlohmann::ordered_json& json, int indent = -1)
{
    return json.dump(indent, ' ', false, nlohmann::json::error_handler_t::replace);
}

std::string ArgumentText(const Argument& argument)
{
    if (argument.localStub) {
        return argument.type + ": a local stub that sharectl creates";
    }
    return argument.type + (argument.schema.is_null() ? "" : ", as JSON: " + Dumped(argument.schema)) +
           (argument.note.empty() ? "" : "; " + argument.note);
}

std::string ServiceDescription(ServiceKind service)
{
    return service == ServiceKind::SHARE
               ? "the share service (system ability " + std::to_string(EMULATED_SHARE_SERVICE_ID) + ")"
               : "the share manager service (system ability " + std::to_string(EMULATED_SHARE_MANAGER_ID) + ")";
}
} // namespace

void PrintOperationList(Output& out)
{
    nlohmann::ordered_json& listed = out.Document()["operations"] = nlohmann::ordered_json::array();
    for (const Operation* operation : AllOperations()) {
        char line[128];
        std::snprintf(line, sizeof(line), "%-8s %3u  %s", ServiceName(operation->service), operation->code,
                      operation->name);
        out.Line(line);
        listed.push_back(
            {{"service", ServiceName(operation->service)}, {"code", operation->code}, {"name", operation->name}});
    }
    out.Line("(share.NAME and manager.NAME: both services have the name; call it with its service)");
}

void PrintOperationDescription(const Operation& operation, Output& out)
{
    out.Line(std::string(operation.name) + ": request code " + std::to_string(operation.code) + " of " +
             ServiceDescription(operation.service));
    out.Line("  calls      " + ClientFunction(operation) + ", which returns " + operation.result);
    nlohmann::ordered_json arguments = nlohmann::ordered_json::array();
    out.Line(operation.arguments.empty() ? "  arguments  none" : "  arguments");
    for (const Argument& argument : operation.arguments) {
        out.Line("    " + argument.name + "  " + ArgumentText(argument));
        arguments.push_back({{"name", argument.name},
                             {"type", argument.type},
                             {"createdBySharectl", argument.localStub},
                             {"schema", argument.schema}});
    }
    out.Line("  request    the interface token, then " + operation.request);
    out.Line("  reply      " + operation.reply);
    out.Document() = {{"name", operation.name},       {"service", ServiceName(operation.service)},
                      {"code", operation.code},       {"client", ClientFunction(operation)},
                      {"result", operation.result},   {"arguments", arguments},
                      {"request", operation.request}, {"reply", operation.reply}};
}

void PrintCallOutcome(const Operation& operation, const CallOutcome& outcome, Output& out)
{
    out.Document() = {{"operation", operation.name},
                      {"service", ServiceName(operation.service)},
                      {"code", operation.code},
                      {"result", outcome.value},
                      {"meaning", outcome.meaning}};
    const std::string head = std::string(operation.name) + " ->";
    const bool text = outcome.value.is_string();
    const std::string shown = text ? outcome.value.get<std::string>() : Dumped(outcome.value);
    if (shown.size() <= INLINE_LENGTH && shown.find('\n') == std::string::npos) {
        out.Line(head + " " + outcome.Text());
        return;
    }
    // The value on lines of its own, under what it is: a text as it is, anything else indented.
    out.Line(head + (outcome.meaning.empty() ? "" : " " + outcome.meaning));
    out.Line(text ? shown : Dumped(outcome.value, INDENT));
}

} // namespace Zelkon
} // namespace OHOS
