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
 * The share manager service as the client meets it on a device: a scripted stub added to the host system ability
 * manager, so the client talks to it through a remote object. Every test starts from a client without a proxy, with
 * the log lines of the start cleared.
 */
#ifndef SHARE_MANAGER_HARNESS_H
#define SHARE_MANAGER_HARNESS_H

#include <gtest/gtest.h>

#include "iservice_registry.h"
#include "notice_counter.h"
#include "samgr_host_control.h"
#include "scripted_stub.h"
#include "service_client_test.h"
#include "share_manager_client.h"
#include "test_remote.h"

namespace OHOS {
namespace Zelkon {

inline constexpr const char* CLIENT_TAG = "ShareManagerClient";
inline constexpr const char* PROXY_TAG = "ShareManagerProxy";

// Counts died notices and lets a test wait for them.
class CountingDiedCallback : public ShareManagerDiedCallback, public NoticeCounter {
public:
    void OnShareManagerDied() override { Notice(); }
};

class ShareManagerTest : public ServiceClientTest<ShareManagerClient, SHARE_MANAGER_SA_ID> {
protected:
    void SetUp() override
    {
        SamgrHostControl::Reset();
        stub_ = StartService();
        log_.Clear();
    }

    // Starts a new instance of the service "in another process".
    static sptr<ScriptedStub> StartService()
    {
        sptr<ScriptedStub> stub = new ScriptedStub(IWidgetService::GetDescriptor());
        sptr<ISystemAbilityManager> manager = SystemAbilityManagerClient::GetInstance().GetSystemAbilityManager();
        EXPECT_EQ(manager->AddSystemAbility(SHARE_MANAGER_SA_ID, stub), 0);
        return stub;
    }
};

} // namespace Zelkon
} // namespace OHOS

#endif // SHARE_MANAGER_HARNESS_H
