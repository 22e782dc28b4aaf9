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
 * How sharectl passes each type of parameter that the clients' functions take: as what argument describe shows it
 * and call reads it, and with what value. Numbers, flags, texts and records come from the command line, strictly
 * read; listeners and callbacks are sharectl's own local stubs.
 */
#ifndef CLIENT_PARAMETER_H
#define CLIENT_PARAMETER_H

#include <string>
#include <tuple>
#include <type_traits>

#include <nlohmann/json.hpp>

#include "call_arguments.h"
#include "json_field_reader.h"
#include "json_field_schema.h"
#include "library_record_fields.h"
#include "operation.h"
#include "strict_values.h"
#include "string_ex.h"
#include "usage_error.h"

namespace OHOS {
namespace Zelkon {

// The VALUE of NAME=VALUE as JSON, read strictly by the parameter's type; a refusal is a UsageError naming NAME.
template <typename Value>
nlohmann::json ReadPlain(const std::string& text, const std::string& name)
{
    if constexpr (std::is_same_v<Value, std::string>) {
        return text;
    } else if constexpr (std::is_same_v<Value, bool>) {
        return RequireBool(text, name);
    } else {
        return RequireInteger<Value>(text, name);
    }
}

// A record's JSON is read into a record once here, so that an unknown field or a wrong type is refused before the call.
template <typename Record>
nlohmann::json ReadRecord(const std::string& text, const std::string& name)
{
    try {
        nlohmann::json json = ParseJsonText(text);
        Record record{};
        JsonFieldReader::Read(json, name, record);
        return json;
    } catch (const JsonFieldError& error) {
        const std::string what = error.what();
        throw UsageError(what.rfind(name, 0) == 0 ? what : name + ": " + what);
    }
}

template <typename Record>
struct RecordText {
    // As describe shows the type.
    const char* name;
    // How a request carries the record, where that is the same in every operation; null where it is not.
    const char* layout;
};

// The records that the clients take.
inline const std::tuple<RecordText<ShareDeviceInfo>, RecordText<SendBean>, RecordText<DataBean>, RecordText<BytesInfo>,
                        RecordText<CommonShareObject>, RecordText<ShareDevice>, RecordText<TransmitParam>>
    RECORD_TEXTS = {
        {"ShareDeviceInfo", "its 19 fields in declaration order; contactInfo as contactKind: int32, contactName: "
                            "string, contactPhoto: string"},
        {"SendBean", "previewText: string, file count: uint32, per file uri: string, name: string, size: int64"},
        {"DataBean", "fileName: string, fileSize: int64, fd: file descriptor"},
        {"BytesInfo", "mimeType: string, bytes: string"},
        {"CommonShareObject", "networkId: string, timeout: int32, type: int32, resumable: bool, content: big string "
                              "(size word, raw block), item count: uint32, per item uri: string, fd: file descriptor"},
        {"ShareDevice", "presence word int32, then deviceId: string, deviceName: string, nearby version: int32, OH "
                        "flag: int32"},
        // Its fields travel around the operation's other arguments.
        {"TransmitParam", nullptr},
};

// "SendBean (previewText: string, ...)".
template <typename Record>
std::string RecordWire()
{
    const RecordText<Record>& text = std::get<RecordText<Record>>(RECORD_TEXTS);
    return text.layout == nullptr ? text.name : std::string(text.name) + " (" + text.layout + ")";
}

template <typename Value>
struct PlainParameter {
    static Argument Describe(const char* name)
    {
        return {name, JsonTypeName<Value>(), false, nullptr, JsonTypeName<Value>(), "", ReadPlain<Value>};
    }
    static Value Supply(const CallArguments& arguments, const char* name, LocalRemotes&)
    {
        return arguments.Get<Value>(name);
    }
};

template <typename Record>
struct RecordParameter {
    static Argument Describe(const char* name)
    {
        const RecordText<Record>& text = std::get<RecordText<Record>>(RECORD_TEXTS);
        return {name, text.name, false, JsonFieldSchema::Of<Record>(), RecordWire<Record>(), "", ReadRecord<Record>};
    }
    static Record Supply(const CallArguments& arguments, const char* name, LocalRemotes&)
    {
        return arguments.Get<Record>(name);
    }
};

template <typename Value>
struct ClientParameter : std::conditional_t<std::is_arithmetic_v<Value> || std::is_same_v<Value, std::string>,
                                            PlainParameter<Value>, RecordParameter<Value>> {
};

// A listener or callback: sharectl's own stub of the interface, named as the interface's descriptor ends.
template <typename Interface>
struct ClientParameter<sptr<Interface>> {
    static Argument Describe(const char* name)
    {
        const std::string descriptor = Str16ToStr8(Interface::GetDescriptor());
        return {name, descriptor.substr(descriptor.rfind('.') + 1), true, nullptr, "remote object", "", nullptr};
    }
    static sptr<Interface> Supply(const CallArguments&, const char*, LocalRemotes& remotes)
    {
        return remotes.template Stub<Interface>();
    }
};

template <>
struct ClientParameter<sptr<ShareDevice>> : RecordParameter<ShareDevice> {
    static sptr<ShareDevice> Supply(const CallArguments& arguments, const char* name, LocalRemotes&)
    {
        return new ShareDevice(arguments.Get<ShareDevice>(name));
    }
};

// The transfer parameters, with sharectl's own callback.
template <>
struct ClientParameter<TransmitParam> : RecordParameter<TransmitParam> {
    static Argument Describe(const char* name)
    {
        Argument argument = RecordParameter<TransmitParam>::Describe(name);
        argument.note = "its transCallback is a local stub that sharectl creates";
        return argument;
    }
    static TransmitParam Supply(const CallArguments& arguments, const char* name, LocalRemotes& remotes)
    {
        TransmitParam param = arguments.Get<TransmitParam>(name);
        param.transCallback = remotes.Stub<ITransmitCallback>();
        return param;
    }
};

} // namespace Zelkon
} // namespace OHOS

#endif // CLIENT_PARAMETER_H
