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
 * The client's connection under scripted loads and deaths: how long Connect waits, when it asks for a new load,
 * what a death notice does, and that each service is watched once.
 */
#include <chrono>
#include <memory>

#include "share_service_harness.h"

namespace OHOS {
namespace Zelkon {
namespace {

using Clock = std::chrono::steady_clock;
using std::chrono::milliseconds;

milliseconds Elapsed(Clock::time_point start)
{
    return std::chrono::duration_cast<milliseconds>(Clock::now() - start);
}

class ShareClientConnectionTest : public ShareServiceTest {
protected:
    // Connects, then kills the service and waits until the client has heard of it.
    void ConnectThenKill(const std::shared_ptr<CountingDiedCallback>& callback)
    {
        ASSERT_EQ(Client().Connect(), 0);
        Client().RegisterDiedCallback(callback);
        ASSERT_TRUE(SamgrHostControl::KillSystemAbility(SHARE_SERVICE_SA_ID));
        ASSERT_TRUE(callback->WaitForCount(1));
    }

    const LogLine timeout_{CLIENT_TAG, LOG_ERROR, "Load zelkon SA after 200ms but still can not get it."};
};

TEST_F(ShareClientConnectionTest, ALoadEndsTheWaitAtOnceAndAConnectedClientAsksForNothing)
{
    SamgrHostControl::ScriptLoads({LoadScript::Outcome::SUCCEED, milliseconds(30)});
    const auto start = Clock::now();
    EXPECT_EQ(Client().Connect(), 0);
    EXPECT_LT(Elapsed(start), ShareClient::CONNECT_TIMEOUT);
    const int loads = Loads();
    EXPECT_EQ(Client().Connect(), 0);
    EXPECT_EQ(Loads(), loads);
    ExpectLines(log_, {{CLIENT_TAG, LOG_INFO, "LoadShareSa invoked."},
                       {CLIENT_TAG, LOG_INFO, "OnLoadSystemAbilitySuccess invoked: 65569"},
                       {CLIENT_TAG, LOG_INFO, "shareProxy_ is already exists."}});
    EXPECT_EQ(ErrorLines(log_, CLIENT_TAG), 0u);
}

TEST_F(ShareClientConnectionTest, ALoadThatBringsNoServiceEndsAtTheDeadlineAndTheNextConnectAsksAgain)
{
    for (LoadScript::Outcome outcome : {LoadScript::Outcome::OTHER_ID, LoadScript::Outcome::FAIL}) {
        LoadScript script;
        script.outcome = outcome;
        script.otherId = SHARE_SERVICE_SA_ID + 1;
        SamgrHostControl::ScriptLoads(script);
        log_.Clear();
        const int loads = Loads();
        const auto start = Clock::now();
        EXPECT_EQ(Client().Connect(), -1);
        EXPECT_GE(Elapsed(start), ShareClient::CONNECT_TIMEOUT);
        EXPECT_EQ(Loads(), loads + 1);
        ExpectLines(log_, {timeout_});
    }
    EXPECT_EQ(Client().Connect(), 0);
}

TEST_F(ShareClientConnectionTest, ARefusedDeathRecipientLeavesTheClientWithoutProxy)
{
    SamgrHostControl::SetDeathRecipientsRefused(true);
    EXPECT_EQ(Client().Connect(), -1);
    ExpectLines(log_, {{CLIENT_TAG, LOG_ERROR, "Add death recipient to share service failed"}, timeout_});
    SamgrHostControl::SetDeathRecipientsRefused(false);
    EXPECT_EQ(Client().EnableDiscoveryPolicy(1), 1);
    EXPECT_EQ(stub_->Codes(), std::vector<uint32_t>{11});
}

TEST_F(ShareClientConnectionTest, DeathDropsTheProxyTellsTheCallbackOnceAndTheNextCallReloads)
{
    auto callback = std::make_shared<CountingDiedCallback>();
    ConnectThenKill(callback);
    SamgrHostControl::Reset();
    EXPECT_EQ(callback->Count(), 1);
    EXPECT_EQ(Logged({CLIENT_TAG, LOG_DEBUG, "Recv death notice"}), 1u);
    sptr<ScriptedStub> reloaded = new ScriptedStub(ZelkonService::GetDescriptor());
    RegisterShareService(reloaded);
    EXPECT_EQ(Client().EnableDiscoveryPolicy(2), 1);
    EXPECT_EQ(Loads(), 1);
    EXPECT_EQ(reloaded->Codes(), std::vector<uint32_t>{11});
}

TEST_F(ShareClientConnectionTest, EachServiceIsWatchedOnceHoweverOftenItIsHandedOver)
{
    auto callback = std::make_shared<CountingDiedCallback>();
    Client().RegisterDiedCallback(callback);
    ASSERT_EQ(Client().Connect(), 0);
    // The same service handed over again, as concurrent loads do.
    Client().SetShareSa(RunningShareService());
    // The proxy dropped by hand and the service loaded again: the first watch was released with the proxy.
    Client().ResetProxy(RunningShareService());
    const int loads = Loads();
    ASSERT_EQ(Client().Connect(), 0);
    EXPECT_EQ(Loads(), loads + 1);
    ASSERT_TRUE(SamgrHostControl::KillSystemAbility(SHARE_SERVICE_SA_ID));
    ASSERT_TRUE(callback->WaitForCount(1));
    IpcThreads::Drain();
    EXPECT_EQ(callback->Count(), 1);
}

TEST_F(ShareClientConnectionTest, ADeathNoticeForAnotherObjectOrAReleasedOneKeepsTheProxy)
{
    ASSERT_EQ(Client().Connect(), 0);
    auto callback = std::make_shared<CountingDiedCallback>();
    sptr<ShareClient::ShareDeathRecipient> recipient = new ShareClient::ShareDeathRecipient();
    recipient->SetSaDiedCallback(callback);
    sptr<IRemoteObject> other = new ScriptedStub(u"test.Other");
    recipient->OnRemoteDied(other);
    EXPECT_EQ(callback->Count(), 1) << "the callback hears every notice";
    wptr<IRemoteObject> released;
    {
        sptr<IRemoteObject> gone = new ScriptedStub(u"test.Gone");
        released = gone;
    }
    recipient->OnRemoteDied(released);
    EXPECT_EQ(callback->Count(), 1);
    EXPECT_EQ(Logged({CLIENT_TAG, LOG_ERROR, "OnRemoteDied failed, remote is nullptr"}), 1u);
    const int loads = Loads();
    EXPECT_EQ(Client().Connect(), 0);
    EXPECT_EQ(Loads(), loads);
}

TEST_F(ShareClientConnectionTest, ADiedCallbackMayCallTheClient)
{
    int32_t resultInCallback = -1;
    auto callback = std::make_shared<CountingDiedCallback>(
        [&resultInCallback] { resultInCallback = ShareClient::GetInstance().EnableDiscoveryPolicy(5); });
    ConnectThenKill(callback);
    EXPECT_EQ(resultInCallback, 1) << "the service was loaded again from inside the callback";
}

} // namespace
} // namespace Zelkon
} // namespace OHOS
