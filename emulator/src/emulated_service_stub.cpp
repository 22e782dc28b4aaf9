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

#include "emulated_service_stub.h"

#include <chrono>
#include <csignal>
#include <optional>
#include <thread>
#include <unistd.h>
#include <utility>

#include "emulator_log.h"
#include "field_text.h"
#include "ipc_types.h"
#include "remote_trace.h"
#include "samgr_host_control.h"

namespace OHOS {
namespace Zelkon {
namespace {
// Enough to end a reply in the middle of its last record, whatever that record's last field is.
constexpr size_t TRUNCATED_BYTES = 4;
// Long enough for a reply to leave before its process ends.
constexpr auto REPLY_GRACE = std::chrono::milliseconds(50);
// How long a stalled request blocks before the service's watchdog ends its process, as a device's does (shorter).
constexpr auto STALL_LIMIT = std::chrono::seconds(2);

std::vector<uint8_t> BytesOf(const MessageParcel& parcel)
{
    const auto* begin = reinterpret_cast<const uint8_t*>(parcel.GetData());
    return begin == nullptr ? std::vector<uint8_t>() : std::vector<uint8_t>(begin, begin + parcel.GetDataSize());
}

std::string Narrow(const std::u16string& text)
{
    std::string narrow;
    for (char16_t unit : text) {
        narrow.push_back(unit < 0x80 ? static_cast<char>(unit) : '?');
    }
    return narrow;
}
} // namespace

EmulatedServiceStub::EmulatedServiceStub(const std::u16string& token, std::string serviceName, int32_t systemAbilityId,
                                         ServiceChannels channels) :
    IPCObjectStub(token),
    token_(token), serviceName_(std::move(serviceName)), systemAbilityId_(systemAbilityId),
    channels_(std::move(channels))
{
}

int EmulatedServiceStub::OnRemoteRequest(uint32_t code, MessageParcel& data, MessageParcel& reply,
                                         MessageOption& option)
{
    (void)option;
    if (code == EMULATOR_TRACE_CODE) {
        sptr<IRemoteObject> receiver = data.ReadRemoteObject();
        channels_.trace->SetSink(receiver != nullptr ? TraceReceiver::SinkTo(receiver) : nullptr);
        return ERR_NONE;
    }
    if (ending_) {
        Die(FaultPlan::Death::BEFORE_REPLY);
    }
    {
        std::lock_guard<std::mutex> lock(countsMutex_);
        ++requestCounts_[code];
    }
    DecodedRequest decoded;
    decoded.service = serviceName_;
    decoded.code = code;
    const FaultPlan::Death death = Faults().OnRequest(systemAbilityId_, code);
    if (death == FaultPlan::Death::STALLED) {
        EMULATOR_LOGI("%{public}s: stalls in request %{public}u, as a fault asked", serviceName_.c_str(), code);
        std::this_thread::sleep_for(STALL_LIMIT);
    }
    if (death == FaultPlan::Death::BEFORE_REPLY || death == FaultPlan::Death::STALLED) {
        auto operation = operations_.find(code);
        decoded.operation = operation != operations_.end() ? operation->second.name : "";
        decoded.notes.emplace_back("fault", death == FaultPlan::Death::STALLED
                                                ? "the process stalled in this request until its watchdog ended it"
                                                : "the process died in the middle of this request");
        decoded.result = ERR_DEAD_OBJECT;
    } else {
        decoded.result = Dispatch(code, data, reply, decoded);
        PadIfOversizeArmed(reply, decoded);
    }
    if (death == FaultPlan::Death::AFTER_REPLY) {
        decoded.notes.emplace_back("fault", "the process died after this reply");
    }
    if (channels_.trace->Active()) {
        decoded.requestBytes = BytesOf(data);
        decoded.replyBytes = BytesOf(reply);
        channels_.trace->Emit(decoded);
    }
    if (death != FaultPlan::Death::NONE) {
        Die(death);
    }
    return decoded.result;
}

nlohmann::ordered_json EmulatedServiceStub::Dump()
{
    nlohmann::ordered_json dump = DumpState();
    nlohmann::ordered_json& requests = dump["requests"] = nlohmann::ordered_json::array();
    std::lock_guard<std::mutex> lock(countsMutex_);
    for (const auto& [code, count] : requestCounts_) {
        auto operation = operations_.find(code);
        requests.push_back({{"code", code},
                            {"operation", operation != operations_.end() ? operation->second.name : "<unknown>"},
                            {"count", count}});
    }
    return dump;
}

void EmulatedServiceStub::PadIfOversizeArmed(MessageParcel& reply, DecodedRequest& decoded)
{
    if (!Faults().Take(EmulatorFault::Kind::OVERSIZED_REPLY)) {
        return;
    }
    const std::vector<uint8_t> padding(OVERSIZED_REPLY_PADDING);
    reply.SetMaxCapacity(reply.GetDataSize() + padding.size());
    reply.WriteUnpadBuffer(padding.data(), padding.size());
    decoded.notes.emplace_back("fault", "the reply was padded with " + std::to_string(padding.size()) + " bytes");
}

void EmulatedServiceStub::CutIfTruncationArmed(ReplyWriter& writer)
{
    if (Faults().Take(EmulatorFault::Kind::TRUNCATED_RECORD)) {
        writer.CutLastBytes(TRUNCATED_BYTES);
    }
}

int EmulatedServiceStub::Dump(int fd, const std::vector<std::u16string>& args)
{
    std::string answer;
    if (args.empty()) {
        constexpr int INDENT = 2;
        answer = Dump().dump(INDENT, ' ', false, nlohmann::json::error_handler_t::replace);
    } else {
        std::string error = "expected --fault FAULT";
        const std::optional<EmulatorFault> fault = args.size() == 2 && Narrow(args[0]) == "--fault"
                                                       ? EmulatorFault::Parse(Narrow(args[1]), error)
                                                       : std::nullopt;
        if (!fault) {
            EMULATOR_LOGE("%{public}s: dump arguments refused %{public}s", serviceName_.c_str(), error.c_str());
            return ERR_INVALID_DATA;
        }
        Faults().Arm(*fault);
        answer = "armed";
    }
    for (size_t written = 0; written < answer.size();) {
        const ssize_t count = write(fd, answer.data() + written, answer.size() - written);
        if (count <= 0) {
            return ERR_INVALID_DATA;
        }
        written += static_cast<size_t>(count);
    }
    return ERR_NONE;
}

void EmulatedServiceStub::Die(FaultPlan::Death death)
{
    EMULATOR_LOGI("%{public}s: the process of %{public}d dies, as a fault asked", serviceName_.c_str(),
                  systemAbilityId_);
    if (!channels_.ownProcess) {
        SamgrHostControl::KillSystemAbility(systemAbilityId_);
        return;
    }
    if (death == FaultPlan::Death::BEFORE_REPLY || death == FaultPlan::Death::STALLED) {
        raise(SIGKILL);
    }
    ending_ = true;
    std::thread([] {
        std::this_thread::sleep_for(REPLY_GRACE);
        raise(SIGKILL);
    }).detach();
}

int EmulatedServiceStub::Dispatch(uint32_t code, MessageParcel& data, MessageParcel& reply, DecodedRequest& decoded)
{
    auto operation = operations_.find(code);
    if (operation == operations_.end()) {
        EMULATOR_LOGE("%{public}s: unknown request code %{public}u", serviceName_.c_str(), code);
        return IPC_STUB_UNKNOW_TRANS_ERR;
    }
    decoded.operation = operation->second.name;
    const std::u16string token = data.ReadInterfaceToken();
    decoded.fields.emplace_back("token", QuotedText(Narrow(token)));
    if (token != token_) {
        EMULATOR_LOGE("%{public}s: %{public}s refused, interface token \"%{public}s\"", serviceName_.c_str(),
                      operation->second.name, Narrow(token).c_str());
        return ERR_INVALID_STATE;
    }
    RequestReader reader(data, decoded);
    ReplyWriter writer(reply, decoded);
    operation->second.handle(reader, writer);
    if (reader.Failed()) {
        EMULATOR_LOGE("%{public}s: %{public}s refused, malformed request", serviceName_.c_str(),
                      operation->second.name);
        return ERR_INVALID_DATA;
    }
    if (writer.Failed()) {
        return IPC_STUB_WRITE_PARCEL_ERR;
    }
    EMULATOR_LOGD("%{public}s: %{public}s answered", serviceName_.c_str(), operation->second.name);
    return ERR_NONE;
}

} // namespace Zelkon
} // namespace OHOS
