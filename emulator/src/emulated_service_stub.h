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
 * The part that both emulated services share: the code table, the interface token check, the refusal of malformed
 * requests, the trace of every request with its reply, the count of requests by code, and the faults that a
 * service plays (its process dying, hostile list replies).
 */
#ifndef EMULATED_SERVICE_STUB_H
#define EMULATED_SERVICE_STUB_H

#include <atomic>
#include <functional>
#include <map>
#include <memory>
#include <mutex>
#include <string>
#include <utility>
#include <vector>

#include <nlohmann/json.hpp>

#include "fault_plan.h"
#include "ipc_object_stub.h"
#include "message_option.h"
#include "reply_writer.h"
#include "request_reader.h"
#include "trace_channel.h"

namespace OHOS {
namespace Zelkon {

// What every service instance of one installed emulator shares.
struct ServiceChannels {
    std::shared_ptr<TraceChannel> trace;
    std::shared_ptr<FaultPlan> faults;
    // A service in a process of its own dies by ending that process; one in the caller's process is killed in the
    // system ability manager.
    bool ownProcess = false;
};

class EmulatedServiceStub : public IPCObjectStub {
public:
    EmulatedServiceStub(const std::u16string& token, std::string serviceName, int32_t systemAbilityId,
                        ServiceChannels channels);

    int OnRemoteRequest(uint32_t code, MessageParcel& data, MessageParcel& reply, MessageOption& option) override;
    // The service's state, and its requests counted by code.
    nlohmann::ordered_json Dump();
    // The platform's dump, as another process asks for it: no arguments write Dump() as JSON; "--fault FAULT" arms
    // the fault here.
    int Dump(int fd, const std::vector<std::u16string>& args) override;

protected:
    // Decodes the request's fields; changes state and writes the reply only once all of them were read.
    using Handler = std::function<void(RequestReader&, ReplyWriter&)>;

    void Add(uint32_t code, const char* operation, Handler handle)
    {
        operations_[code] = {operation, std::move(handle)};
    }

    // A handler that needs the service itself: its faults or its list replies.
    template <typename Stub>
    void Add(uint32_t code, const char* operation, void (Stub::*handle)(RequestReader&, ReplyWriter&))
    {
        Add(code, operation, [this, handle](RequestReader& reader, ReplyWriter& writer) {
            (static_cast<Stub*>(this)->*handle)(reader, writer);
        });
    }

    virtual nlohmann::ordered_json DumpState() = 0;

    // A count, then the records, each field named "<name>[index].<field>"; a hostile-count or truncated-record
    // fault armed for the next list reply plays here.
    template <typename Record>
    void AnswerList(ReplyWriter& writer, const std::string& name, const std::vector<Record>& records,
                    bool (*write)(ReplyWriter&, const Record&))
    {
        if (Faults().Take(EmulatorFault::Kind::HOSTILE_COUNT)) {
            writer.Int32("count", HOSTILE_LIST_COUNT);
            writer.Note("fault", "hostile count, no records");
            return;
        }
        if (!writer.Int32("count", static_cast<int32_t>(records.size()))) {
            return;
        }
        for (size_t i = 0; i < records.size(); ++i) {
            writer.SetRecordPrefix(name + "[" + std::to_string(i) + "].");
            if (!write(writer, records[i])) {
                return;
            }
        }
        writer.SetRecordPrefix("");
        if (!records.empty()) {
            CutIfTruncationArmed(writer);
        }
    }

    // Plays an armed truncated-record fault on a reply whose last field belongs to a record.
    void CutIfTruncationArmed(ReplyWriter& writer);
    FaultPlan& Faults() { return *channels_.faults; }

private:
    // One above the bound that readers of a list reply keep.
    static constexpr int32_t HOSTILE_LIST_COUNT = 1001;
    // A device's binder buffer: 1 MiB less two pages.
    static constexpr size_t OVERSIZED_REPLY_PADDING = 1024 * 1024 - 2 * 4096;

    struct Operation {
        const char* name;
        Handler handle;
    };

    int Dispatch(uint32_t code, MessageParcel& data, MessageParcel& reply, DecodedRequest& decoded);
    void Die(FaultPlan::Death death);
    // Plays an armed oversized-reply fault on a reply that was written.
    void PadIfOversizeArmed(MessageParcel& reply, DecodedRequest& decoded);

    const std::u16string token_;
    const std::string serviceName_;
    const int32_t systemAbilityId_;
    const ServiceChannels channels_;
    std::map<uint32_t, Operation> operations_;
    std::mutex countsMutex_;
    std::map<uint32_t, uint64_t> requestCounts_;
    // A process that dies after its reply: a request that arrives before the end finds it gone.
    std::atomic<bool> ending_{false};
};

} // namespace Zelkon
} // namespace OHOS

#endif // EMULATED_SERVICE_STUB_H
