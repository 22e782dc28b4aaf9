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
 * Both emulated services installed in the host system ability manager, reached through their remote objects as
 * a client process would reach them, with raw requests built field by field.
 */
#ifndef EMULATOR_TEST_FIXTURE_H
#define EMULATOR_TEST_FIXTURE_H

#include <string>

#include <gtest/gtest.h>

#include "ipc_object_stub.h"
#include "iservice_registry.h"
#include "message_option.h"
#include "message_parcel.h"
#include "samgr_host_control.h"
#include "share_emulator.h"

namespace OHOS {
namespace Zelkon {

// A caller's listener: a local object whose remote object travels in requests.
class TestListener : public IPCObjectStub {
public:
    TestListener() : IPCObjectStub(u"ohos.Zelkon.ISubscribeListener") {}
};

class EmulatorTest : public testing::Test {
protected:
    void SetUp() override
    {
        SamgrHostControl::Reset();
        ShareEmulator::Install();
        ReachServices(LOAD_TIMEOUT_SECONDS);
    }

    // Loads the share service and finds the share manager service, which is started if it is not running.
    void ReachServices(int32_t loadTimeoutSeconds)
    {
        sptr<ISystemAbilityManager> manager = SystemAbilityManagerClient::GetInstance().GetSystemAbilityManager();
        ASSERT_NE(manager, nullptr);
        shareService_ = manager->LoadSystemAbility(EMULATED_SHARE_SERVICE_ID, loadTimeoutSeconds);
        shareManager_ = manager->GetSystemAbility(EMULATED_SHARE_MANAGER_ID);
        ASSERT_NE(shareService_, nullptr);
        ASSERT_NE(shareManager_, nullptr);
    }

    void TearDown() override
    {
        ShareEmulator::SetTraceSink(nullptr);
        ShareEmulator::Uninstall();
        SamgrHostControl::Reset();
    }

    static int Send(const sptr<IRemoteObject>& service, uint32_t code, MessageParcel& data, MessageParcel& reply)
    {
        MessageOption option;
        return service->SendRequest(code, data, reply, option);
    }

    // Sends a request that carries only the service's token and reads the bool reply.
    static bool AskBool(const sptr<IRemoteObject>& service, const std::u16string& token, uint32_t code)
    {
        MessageParcel data;
        MessageParcel reply;
        data.WriteInterfaceToken(token);
        EXPECT_EQ(Send(service, code, data, reply), 0);
        return reply.ReadBool();
    }

    static constexpr int32_t LOAD_TIMEOUT_SECONDS = 1;

    sptr<IRemoteObject> shareService_;
    sptr<IRemoteObject> shareManager_;
};

} // namespace Zelkon
} // namespace OHOS

#endif // EMULATOR_TEST_FIXTURE_H
