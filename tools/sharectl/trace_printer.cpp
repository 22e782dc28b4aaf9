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

#include "trace_printer.h"

#include <cstdio>
#include <string>

namespace OHOS {
namespace Zelkon {
namespace {
constexpr size_t BYTES_PER_LINE = 16;
// Past this, only the head of a parcel is shown: the rest is long texts whose fields are already printed.
constexpr size_t SHOWN_BYTES = 256;

void PrintFields(std::ostream& out, const DecodedRequest::Fields& fields, const char* mark = "")
{
    for (const auto& [field, value] : fields) {
        out << "      " << mark << field << " = " << value << '\n';
    }
}

nlohmann::ordered_json FieldsJson(const DecodedRequest::Fields& fields)
{
    nlohmann::ordered_json object = nlohmann::ordered_json::object();
    for (const auto& [field, value] : fields) {
        object[field] = value;
    }
    return object;
}

void PrintBytes(std::ostream& out, const std::vector<uint8_t>& bytes)
{
    const size_t shown = bytes.size() < SHOWN_BYTES ? bytes.size() : SHOWN_BYTES;
    for (size_t line = 0; line < shown; line += BYTES_PER_LINE) {
        char offset[32];
        std::snprintf(offset, sizeof(offset), "      %04zx ", line);
        out << offset;
        for (size_t i = line; i < line + BYTES_PER_LINE && i < shown; ++i) {
            char byte[4];
            std::snprintf(byte, sizeof(byte), " %02x", bytes[i]);
            out << byte;
        }
        out << '\n';
    }
    if (shown < bytes.size()) {
        out << "      ... " << bytes.size() - shown << " more bytes\n";
    }
}
} // namespace

void PrintTrace(std::ostream& out, const DecodedRequest& request)
{
    out << "  >> " << request.service << " code " << request.code << ' '
        << (request.operation.empty() ? "<unknown>" : request.operation) << " (" << request.requestBytes.size()
        << " bytes)\n";
    PrintFields(out, request.fields);
    PrintBytes(out, request.requestBytes);
    out << "  << result " << request.result << " (" << request.replyBytes.size() << " bytes)\n";
    PrintFields(out, request.replyFields);
    PrintBytes(out, request.replyBytes);
    PrintFields(out, request.notes, "emulator note: ");
}

nlohmann::ordered_json TraceJson(const DecodedRequest& request)
{
    return {{"service", request.service},
            {"code", request.code},
            {"operation", request.operation},
            {"request", FieldsJson(request.fields)},
            {"requestBytes", request.requestBytes.size()},
            {"result", request.result},
            {"reply", FieldsJson(request.replyFields)},
            {"replyBytes", request.replyBytes.size()},
            {"emulatorNotes", FieldsJson(request.notes)}};
}

} // namespace Zelkon
} // namespace OHOS
