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

#include "process_boundary.h"

#include <map>
#include <mutex>
#include <unistd.h>
#include <vector>

#include "ipc_log.h"
#include "ipc_object_proxy.h"
#include "parcel_records.h"

namespace OHOS {
namespace {
// The remote object standing for each local object that crossed a boundary, so that the other side sees one
// identity per object. Never destroyed: objects may cross while statics are torn down.
class ForwarderTable {
public:
    static ForwarderTable& Instance()
    {
        static ForwarderTable* instance = new ForwarderTable();
        return *instance;
    }

    sptr<IRemoteObject> ForwarderOf(const sptr<IRemoteObject>& local)
    {
        // References taken under the lock are dropped after it: dropping the last one runs destructors.
        std::vector<sptr<IPCObjectProxy>> held;
        std::lock_guard<std::mutex> lock(mutex_);
        auto it = forwarders_.find(local.GetRefPtr());
        if (it != forwarders_.end()) {
            held.push_back(it->second.promote());
            if (held.back() != nullptr && !held.back()->HasProcessEnded()) {
                return held.back();
            }
        }
        ForgetExpired(held);
        sptr<IPCObjectProxy> forwarder = new IPCObjectProxy(local);
        forwarders_[local.GetRefPtr()] = forwarder;
        return forwarder;
    }

private:
    void ForgetExpired(std::vector<sptr<IPCObjectProxy>>& held)
    {
        for (auto it = forwarders_.begin(); it != forwarders_.end();) {
            held.push_back(it->second.promote());
            it = held.back() == nullptr ? forwarders_.erase(it) : std::next(it);
        }
    }

    std::mutex mutex_;
    std::map<const IRemoteObject*, wptr<IPCObjectProxy>> forwarders_;
};

} // namespace

sptr<IRemoteObject> ProcessBoundary::Translate(const sptr<IRemoteObject>& object)
{
    if (object == nullptr || object->IsProxyObject()) {
        return object;
    }
    return ForwarderTable::Instance().ForwarderOf(object);
}

bool ProcessBoundary::Copy(const MessageParcel& from, MessageParcel& to)
{
    std::vector<ParcelRecord> records = ParcelRecords::Of(from);
    for (ParcelRecord& record : records) {
        if (record.object != nullptr) {
            record.object = Translate(record.object);
            continue;
        }
        record.fd = dup(record.fd);
        if (record.fd < 0) {
            IPC_HOST_LOGE("dup of a carried fd failed, errno %{public}d", errno);
        }
    }
    const auto* data = reinterpret_cast<const uint8_t*>(from.GetData());
    std::vector<uint8_t> bytes(data, data + from.GetDataSize());
    return ParcelRecords::Append(to, bytes.data(), bytes.size(), std::move(records));
}

} // namespace OHOS
