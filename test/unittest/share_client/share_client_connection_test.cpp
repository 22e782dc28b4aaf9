/*
 * The client's connection under scripted loads and deaths: how long Connect waits, when it asks for a new load,
 * and what a death notice does.
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
};

TEST_F(ShareClientConnectionTest, ALoadThatSucceedsBeforeTheDeadlineEndsTheWaitAtOnce)
{
    SamgrHostControl::ScriptLoads({LoadScript::Outcome::SUCCEED, milliseconds(30)});
    auto start = Clock::now();
    EXPECT_EQ(Client().Connect(), 0);
    EXPECT_LT(Elapsed(start), ShareClient::CONNECT_TIMEOUT);
    int loads = Loads();
    EXPECT_EQ(Client().Connect(), 0);
    EXPECT_EQ(Loads(), loads) << "a connected client asks for nothing";
}

TEST_F(ShareClientConnectionTest, ASuccessForAnotherIdOrWithoutObjectIsIgnored)
{
    for (LoadScript::Outcome outcome : {LoadScript::Outcome::OTHER_ID, LoadScript::Outcome::NULL_OBJECT}) {
        LoadScript script;
        script.outcome = outcome;
        script.otherId = SHARE_SERVICE_SA_ID + 1;
        SamgrHostControl::ScriptLoads(script);
        auto start = Clock::now();
        EXPECT_EQ(Client().Connect(), -1);
        EXPECT_GE(Elapsed(start), ShareClient::CONNECT_TIMEOUT);
        // Leave the client wanting a new load for the next round.
        Client().SetLoadShareSaFailed();
    }
}

TEST_F(ShareClientConnectionTest, AFailureWhileWaitingStillWaitsAndTheNextConnectLoadsAgain)
{
    SamgrHostControl::ScriptLoads({LoadScript::Outcome::FAIL, milliseconds(20)});
    int loads = Loads();
    auto start = Clock::now();
    EXPECT_EQ(Client().Connect(), -1);
    EXPECT_GE(Elapsed(start), ShareClient::CONNECT_TIMEOUT);
    EXPECT_EQ(Client().Connect(), 0);
    EXPECT_EQ(Loads(), loads + 2);
}

TEST_F(ShareClientConnectionTest, ARefusedLoadFailsAtOnceAndEveryConnectAsksAgain)
{
    LoadScript refuse;
    refuse.outcome = LoadScript::Outcome::REFUSE;
    SamgrHostControl::ScriptLoads(refuse, 2);
    int loads = Loads();
    auto start = Clock::now();
    EXPECT_EQ(Client().Connect(), -1);
    EXPECT_EQ(Client().Connect(), -1);
    EXPECT_LT(Elapsed(start), ShareClient::CONNECT_TIMEOUT);
    EXPECT_EQ(Client().Connect(), 0);
    EXPECT_EQ(Loads(), loads + 3);
}

TEST_F(ShareClientConnectionTest, ARefusedDeathRecipientLeavesTheClientWithoutProxy)
{
    SamgrHostControl::SetDeathRecipientsRefused(true);
    EXPECT_EQ(Client().Connect(), -1);
    EXPECT_TRUE(stub_->Codes().empty());
    SamgrHostControl::SetDeathRecipientsRefused(false);
    EXPECT_EQ(Client().EnableDiscoveryPolicy(1), 1);
}

TEST_F(ShareClientConnectionTest, DeathDropsTheProxyTellsTheCallbackOnceAndTheNextCallReloads)
{
    auto callback = std::make_shared<CountingDiedCallback>();
    ConnectThenKill(callback);
    SamgrHostControl::Reset();
    EXPECT_EQ(callback->Count(), 1);
    sptr<ScriptedStub> reloaded = new ScriptedStub(ZelkonService::GetDescriptor());
    SamgrHostControl::RegisterLoader(SHARE_SERVICE_SA_ID, [reloaded] { return sptr<IRemoteObject>(reloaded); });
    EXPECT_EQ(Client().EnableDiscoveryPolicy(2), 1);
    EXPECT_EQ(Loads(), 1);
    EXPECT_EQ(reloaded->Codes(), std::vector<uint32_t>{11});
}

TEST_F(ShareClientConnectionTest, ADeathNoticeForAnotherObjectKeepsTheProxy)
{
    ASSERT_EQ(Client().Connect(), 0);
    auto callback = std::make_shared<CountingDiedCallback>();
    sptr<ShareClient::ShareDeathRecipient> recipient = new ShareClient::ShareDeathRecipient();
    recipient->SetSaDiedCallback(callback);
    sptr<IRemoteObject> other = new ScriptedStub(u"test.Other");
    recipient->OnRemoteDied(other);
    Client().ResetProxy(other);
    EXPECT_EQ(callback->Count(), 1) << "the callback hears every notice";
    int loads = Loads();
    EXPECT_EQ(Client().Connect(), 0);
    EXPECT_EQ(Loads(), loads);
}

TEST_F(ShareClientConnectionTest, ADeathNoticeForAReleasedObjectChangesNothing)
{
    ASSERT_EQ(Client().Connect(), 0);
    auto callback = std::make_shared<CountingDiedCallback>();
    sptr<ShareClient::ShareDeathRecipient> recipient = new ShareClient::ShareDeathRecipient();
    recipient->SetSaDiedCallback(callback);
    wptr<IRemoteObject> released;
    {
        sptr<IRemoteObject> gone = new ScriptedStub(u"test.Gone");
        released = gone;
    }
    recipient->OnRemoteDied(released);
    EXPECT_EQ(callback->Count(), 0);
    int loads = Loads();
    EXPECT_EQ(Client().Connect(), 0);
    EXPECT_EQ(Loads(), loads);
}

TEST_F(ShareClientConnectionTest, ADiedCallbackReleasedByItsOwnerIsNotCalled)
{
    ASSERT_EQ(Client().Connect(), 0);
    auto callback = std::make_shared<CountingDiedCallback>();
    Client().RegisterDiedCallback(callback);
    std::weak_ptr<CountingDiedCallback> watch = callback;
    callback.reset();
    ASSERT_TRUE(SamgrHostControl::KillSystemAbility(SHARE_SERVICE_SA_ID));
    SamgrHostControl::Reset();
    EXPECT_TRUE(watch.expired());
    sptr<ScriptedStub> reloaded = new ScriptedStub(ZelkonService::GetDescriptor());
    SamgrHostControl::RegisterLoader(SHARE_SERVICE_SA_ID, [reloaded] { return sptr<IRemoteObject>(reloaded); });
    EXPECT_EQ(Client().Connect(), 0);
    EXPECT_EQ(Loads(), 1) << "the proxy was dropped all the same";
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
