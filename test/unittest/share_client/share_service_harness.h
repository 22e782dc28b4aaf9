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
 * The share service as the client meets it on a device: a scripted stub loaded on demand by the host system
 * ability manager. Every test starts from a client that has no proxy and will load the service at its next
 * Connect, with the log lines of the start cleared.
 */
#ifndef SHARE_SERVICE_HARNESS_H
#define SHARE_SERVICE_HARNESS_H

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <functional>
#include <utility>
#include <vector>

#include <gtest/gtest.h>

#include "ipc_threads.h"
#include "iservice_registry.h"
#include "notice_counter.h"
#include "samgr_host_control.h"
#include "scripted_stub.h"
#include "service_client_test.h"
#include "share_client.h"
#include "test_remote.h"

namespace OHOS {
namespace Zelkon {

inline constexpr const char* CLIENT_TAG = "ShareClient";
inline constexpr const char* PROXY_TAG = "ShareProxy";

// Counts died notices and lets a test wait for one; an optional action runs inside OnShareSaDied.
class CountingDiedCallback : public ShareSaDiedCallback, public NoticeCounter {
public:
    explicit CountingDiedCallback(std::function<void()> action = {}) : action_(std::move(action)) {}

    void OnShareSaDied() override
    {
        if (action_) {
            action_();
        }
        Notice();
    }

private:
    std::function<void()> action_;
};

// Every load of the share service that is not running starts the stub.
inline void RegisterShareService(const sptr<ScriptedStub>& stub)
{
    SamgrHostControl::RegisterLoader(SHARE_SERVICE_SA_ID, [stub] { return sptr<IRemoteObject>(stub); });
}

// The next loads are refused at once, so that the service stays absent without a wait.
inline void RefuseShareLoads(int count)
{
    LoadScript refuse;
    refuse.outcome = LoadScript::Outcome::REFUSE;
    SamgrHostControl::ScriptLoads(refuse, count);
}

inline sptr<IRemoteObject> RunningShareService()
{
    return SystemAbilityManagerClient::GetInstance().GetSystemAbilityManager()->CheckSystemAbility(SHARE_SERVICE_SA_ID);
}

class ShareServiceTest : public ServiceClientTest<ShareClient, SHARE_SERVICE_SA_ID> {
protected:
    void SetUp() override
    {
        SamgrHostControl::Reset();
        stub_ = new ScriptedStub(ZelkonService::GetDescriptor());
        RegisterShareService(stub_);
        // The first test of a process would otherwise meet the constructor's own load.
        Client().Connect();
        SamgrHostControl::KillSystemAbility(SHARE_SERVICE_SA_ID);
        IpcThreads::Drain();
        log_.Clear();
    }

    static int Loads() { return SamgrHostControl::LoadCount(SHARE_SERVICE_SA_ID); }

    size_t Received(uint32_t code) const
    {
        const std::vector<uint32_t> codes = stub_->Codes();
        return static_cast<size_t>(std::count(codes.begin(), codes.end(), code));
    }
};

} // namespace Zelkon
} // namespace OHOS

#endif // SHARE_SERVICE_HARNESS_H
