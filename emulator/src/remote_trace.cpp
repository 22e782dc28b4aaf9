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

#include "remote_trace.h"

#include <utility>

#include <nlohmann/json.hpp>

#include "emulator_log.h"
#include "message_option.h"
#include "message_parcel.h"

namespace OHOS {
namespace Zelkon {
namespace {
// A trace carries whole requests, a 4 MiB share object among them.
constexpr size_t TRACE_CAPACITY = 64 * 1024 * 1024;

nlohmann::json ToJson(const DecodedRequest& request)
{
    return {{"service", request.service},         {"code", request.code},
            {"operation", request.operation},     {"fields", request.fields},
            {"replyFields", request.replyFields}, {"notes", request.notes},
            {"result", request.result},           {"requestBytes", request.requestBytes},
            {"replyBytes", request.replyBytes}};
}

DecodedRequest FromJson(const nlohmann::json& json)
{
    DecodedRequest request;
    json.at("service").get_to(request.service);
    json.at("code").get_to(request.code);
    json.at("operation").get_to(request.operation);
    json.at("fields").get_to(request.fields);
    json.at("replyFields").get_to(request.replyFields);
    json.at("notes").get_to(request.notes);
    json.at("result").get_to(request.result);
    json.at("requestBytes").get_to(request.requestBytes);
    json.at("replyBytes").get_to(request.replyBytes);
    return request;
}
} // namespace

TraceReceiver::TraceReceiver(TraceSink sink) : sink_(std::move(sink)) {}

int TraceReceiver::OnRemoteRequest(uint32_t code, MessageParcel& data, MessageParcel& reply, MessageOption& option)
{
    if (code != EMULATOR_TRACE_CODE) {
        return IPCObjectStub::OnRemoteRequest(code, data, reply, option);
    }
    const nlohmann::json json = nlohmann::json::parse(data.ReadString(), nullptr, false);
    if (json.is_discarded() || !json.is_object()) {
        EMULATOR_LOGE("a trace that is not a decoded request");
        return ERR_INVALID_DATA;
    }
    try {
        sink_(FromJson(json));
    } catch (const nlohmann::json::exception& error) {
        EMULATOR_LOGE("a trace that is not a decoded request: %{public}s", error.what());
        return ERR_INVALID_DATA;
    }
    return ERR_NONE;
}

TraceSink TraceReceiver::SinkTo(const sptr<IRemoteObject>& receiver)
{
    return [receiver](const DecodedRequest& request) {
        MessageParcel data;
        MessageParcel reply;
        MessageOption option;
        data.SetMaxCapacity(TRACE_CAPACITY);
        if (!data.WriteString(ToJson(request).dump()) ||
            receiver->SendRequest(EMULATOR_TRACE_CODE, data, reply, option) != ERR_NONE) {
            EMULATOR_LOGE("the trace of %{public}s did not reach its receiver", request.operation.c_str());
        }
    };
}

} // namespace Zelkon
} // namespace OHOS
