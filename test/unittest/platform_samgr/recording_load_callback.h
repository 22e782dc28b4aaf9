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
 * A load callback that records what it hears: each request's code and whether it came one-way, with the outcome as
 * the load callback stub decoded it.
 */
#ifndef RECORDING_LOAD_CALLBACK_H
#define RECORDING_LOAD_CALLBACK_H

#include <chrono>
#include <condition_variable>
#include <cstdint>
#include <mutex>
#include <ostream>
#include <string>
#include <tuple>
#include <vector>

#include "message_option.h"
#include "system_ability_load_callback_stub.h"

namespace OHOS {

struct HeardOutcome {
    // Only the failure of code 4 carries an error code.
    static constexpr int32_t NO_ERR_CODE = -1;

    uint32_t code = 0;
    bool oneWay = false;
    int32_t systemAbilityId = -1;
    int32_t errCode = NO_ERR_CODE;
    bool withObject = false;
    std::string deviceId;

    bool operator==(const HeardOutcome& other) const
    {
        return std::tie(code, oneWay, systemAbilityId, errCode, withObject, deviceId) ==
               std::tie(other.code, other.oneWay, other.systemAbilityId, other.errCode, other.withObject,
                        other.deviceId);
    }
    friend std::ostream& operator<<(std::ostream& out, const HeardOutcome& heard)
    {
        return out << "{code " << heard.code << (heard.oneWay ? " one-way" : " two-way") << ", id "
                   << heard.systemAbilityId << ", errCode " << heard.errCode
                   << (heard.withObject ? ", an object" : ", no object") << ", device \"" << heard.deviceId << "\"}";
    }
};

class RecordingLoadCallback : public SystemAbilityLoadCallbackStub {
public:
    int32_t OnRemoteRequest(uint32_t code, MessageParcel& data, MessageParcel& reply, MessageOption& option) override
    {
        // One request at a time, so that what the stub decodes belongs to this one.
        std::lock_guard<std::mutex> serial(requestMutex_);
        decoded_ = false;
        current_ = HeardOutcome();
        current_.code = code;
        current_.oneWay = (option.GetFlags() & MessageOption::TF_ASYNC) != 0;
        const int32_t result = SystemAbilityLoadCallbackStub::OnRemoteRequest(code, data, reply, option);
        if (decoded_) {
            std::lock_guard<std::mutex> lock(mutex_);
            heard_.push_back(current_);
            changed_.notify_all();
        }
        return result;
    }

    void OnLoadSystemAbilitySuccess(int32_t systemAbilityId, const sptr<IRemoteObject>& remoteObject) override
    {
        Decoded(systemAbilityId, HeardOutcome::NO_ERR_CODE, remoteObject, "");
    }
    void OnLoadSystemAbilityFail(int32_t systemAbilityId) override
    {
        Decoded(systemAbilityId, HeardOutcome::NO_ERR_CODE, nullptr, "");
    }
    void OnLoadSystemAbilityFail(int32_t systemAbilityId, int32_t errCode) override
    {
        Decoded(systemAbilityId, errCode, nullptr, "");
    }
    void OnLoadSACompleteForRemote(const std::string& deviceId, int32_t systemAbilityId,
                                   const sptr<IRemoteObject>& remoteObject) override
    {
        Decoded(systemAbilityId, HeardOutcome::NO_ERR_CODE, remoteObject, deviceId);
    }

    bool WaitFor(size_t count, std::chrono::milliseconds timeout = std::chrono::seconds(5))
    {
        std::unique_lock<std::mutex> lock(mutex_);
        return changed_.wait_for(lock, timeout, [&] { return heard_.size() >= count; });
    }

    std::vector<HeardOutcome> Heard()
    {
        std::lock_guard<std::mutex> lock(mutex_);
        return heard_;
    }

private:
    // Called by the stub inside OnRemoteRequest, under requestMutex_.
    void Decoded(int32_t systemAbilityId, int32_t errCode, const sptr<IRemoteObject>& object,
                 const std::string& deviceId)
    {
        decoded_ = true;
        current_.systemAbilityId = systemAbilityId;
        current_.errCode = errCode;
        current_.withObject = object != nullptr;
        current_.deviceId = deviceId;
    }

    std::mutex requestMutex_;
    bool decoded_ = false;
    HeardOutcome current_;
    std::mutex mutex_;
    std::condition_variable changed_;
    std::vector<HeardOutcome> heard_;
};

} // namespace OHOS

#endif // RECORDING_LOAD_CALLBACK_H
