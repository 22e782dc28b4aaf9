/*
 * How the client finds the share manager service, watches it and lets it go: lookups without loading, refused
 * death recipients, a missing proxy creator, deaths of the current and of an older service, reconnecting.
 */
#include <memory>

#include "share_manager_harness.h"
#include "share_manager_srv_proxy.h"

namespace OHOS {
namespace Zelkon {
namespace {

class ShareManagerConnectionTest : public ShareManagerTest {
protected:
    // Kills the running service and waits until the client has heard of it.
    static void KillAndWait(const std::shared_ptr<CountingDiedCallback>& callback, int deaths)
    {
        ASSERT_TRUE(SamgrHostControl::KillSystemAbility(SHARE_MANAGER_SA_ID));
        ASSERT_TRUE(callback->WaitForCount(deaths));
    }
};

TEST_F(ShareManagerConnectionTest, ServiceNotRunningIsLookedUpAgainOnEveryCall)
{
    ASSERT_TRUE(SamgrHostControl::KillSystemAbility(SHARE_MANAGER_SA_ID));
    SamgrHostControl::Reset();
    LogCapture::Clear();
    for (int call = 1; call <= 3; ++call) {
        EXPECT_EQ(Client().GetShareManagerSrvProxy(), nullptr);
        EXPECT_EQ(Lookups(), call);
        EXPECT_EQ(LogCapture::Count(CLIENT_TAG, "CheckSystemAbility failed", LOG_ERROR), call);
        EXPECT_EQ(LogCapture::Count(CLIENT_TAG, "Get ShareWidgetService failed.", LOG_ERROR), call);
    }
    EXPECT_FALSE(Client().StartConnect());
    EXPECT_TRUE(LogCapture::Has(CLIENT_TAG, "StartConnect shareManagerSrvProxy_ is nullptr", LOG_ERROR));
    EXPECT_TRUE(Client().GetAllUserList().empty());
    EXPECT_TRUE(LogCapture::Has(CLIENT_TAG, "GetAllUserList shareManagerSrvProxy_ is nullptr", LOG_ERROR));
    EXPECT_FALSE(Client().IsEnabled());
    EXPECT_TRUE(LogCapture::Has(CLIENT_TAG, "shareManagerSrvProxy_ is nullptr", LOG_ERROR));

    // ApplyUriPermission connects itself and logs the connection failure only.
    LogCapture::Clear();
    EXPECT_FALSE(Client().ApplyUriPermission("com.example"));
    EXPECT_EQ(LogCapture::Count(CLIENT_TAG, "Get ShareWidgetService failed.", LOG_ERROR), 1);
    EXPECT_EQ(LogCapture::Count(CLIENT_TAG, "shareManagerSrvProxy_ is nullptr", LOG_ERROR), 0);

    // Started later, the service is found by the next call.
    stub_ = StartService();
    EXPECT_TRUE(Client().IsEnabled());
}

TEST_F(ShareManagerConnectionTest, ASecondConnectKeepsTheProxyWithoutALookup)
{
    EXPECT_EQ(Client().Connect(), 0);
    EXPECT_TRUE(LogCapture::Has(CLIENT_TAG, "Connecting WidgetService success", LOG_DEBUG));
    sptr<IWidgetService> first = Client().GetShareManagerSrvProxy();
    ASSERT_NE(first, nullptr);
    EXPECT_EQ(Client().Connect(), 0);
    EXPECT_EQ(Client().GetShareManagerSrvProxy(), first);
    EXPECT_EQ(Lookups(), 1);
    EXPECT_TRUE(LogCapture::Has(CLIENT_TAG, "shareManagerSrvProxy already exists.", LOG_INFO));
}

TEST_F(ShareManagerConnectionTest, NoSystemAbilityManagerFailsTheConnection)
{
    SamgrHostControl::SetManagerUnavailable(true);
    EXPECT_EQ(Client().Connect(), -1);
    EXPECT_TRUE(LogCapture::Has(CLIENT_TAG, "GetSystemAbilityManager failed", LOG_ERROR));
    SamgrHostControl::SetManagerUnavailable(false);
}

TEST_F(ShareManagerConnectionTest, RefusedDeathRecipientLeavesNoProxy)
{
    SamgrHostControl::SetDeathRecipientsRefused(true);
    EXPECT_EQ(Client().Connect(), -1);
    EXPECT_TRUE(LogCapture::Has(CLIENT_TAG, "Add death recipient to share service failed", LOG_ERROR));
    EXPECT_FALSE(Client().IsEnabled());
    EXPECT_TRUE(stub_->Codes().empty());
    SamgrHostControl::SetDeathRecipientsRefused(false);
    EXPECT_TRUE(Client().IsEnabled());
}

TEST_F(ShareManagerConnectionTest, MissingProxyCreatorConnectsButHandsOutNull)
{
    // Take the creator away while this test runs; the registry accepts it again afterwards.
    BrokerRegistration::Get().Unregister(IWidgetService::GetDescriptor());
    EXPECT_EQ(Client().Connect(), 0);
    EXPECT_TRUE(LogCapture::Has(CLIENT_TAG, "Connecting WidgetService success", LOG_DEBUG));
    EXPECT_EQ(Client().GetShareManagerSrvProxy(), nullptr);
    EXPECT_FALSE(Client().IsEnabled());
    BrokerRegistration::Get().Register(IWidgetService::GetDescriptor(), BrokerCreator<ShareManagerSrvProxy>(), nullptr);
    EXPECT_TRUE(Client().IsEnabled());
}

TEST_F(ShareManagerConnectionTest, DeathDropsTheProxyTellsTheCallerAndReconnectWatchesTheNewService)
{
    auto callback = std::make_shared<CountingDiedCallback>();
    Client().RegisterDiedCallback(callback);
    ASSERT_TRUE(Client().IsEnabled());
    KillAndWait(callback, 1);
    EXPECT_FALSE(Client().IsEnabled());

    stub_ = StartService();
    ASSERT_TRUE(Client().IsEnabled());
    // The recipient is on the new object: its death is heard, too.
    KillAndWait(callback, 2);
    EXPECT_EQ(Client().GetShareManagerSrvProxy(), nullptr);
}

TEST_F(ShareManagerConnectionTest, DeathOfAnOlderServiceKeepsTheCurrentProxy)
{
    auto callback = std::make_shared<CountingDiedCallback>();
    Client().RegisterDiedCallback(callback);
    ASSERT_EQ(Client().Connect(), 0);
    sptr<IWidgetService> old = Client().GetShareManagerSrvProxy();
    ASSERT_NE(old, nullptr);
    sptr<IRemoteObject> oldObject = old->AsObject();

    // A stale notice for an object the client no longer talks to changes nothing.
    sptr<IRemoteObject> other = new ScriptedStub(IWidgetService::GetDescriptor());
    Client().ResetProxy(other);
    EXPECT_EQ(Client().GetShareManagerSrvProxy(), old);

    KillAndWait(callback, 1);
    stub_ = StartService();
    sptr<IWidgetService> current = Client().GetShareManagerSrvProxy();
    ASSERT_NE(current, nullptr);
    ASSERT_NE(current->AsObject(), oldObject);
    Client().ResetProxy(oldObject);
    EXPECT_EQ(Client().GetShareManagerSrvProxy(), current);
}

TEST_F(ShareManagerConnectionTest, DiedCallbackReleasedByItsOwnerIsNotCalled)
{
    auto callback = std::make_shared<CountingDiedCallback>();
    Client().RegisterDiedCallback(callback);
    std::weak_ptr<CountingDiedCallback> watched = callback;
    callback.reset();
    ASSERT_TRUE(watched.expired());
    ASSERT_TRUE(Client().IsEnabled());
    ASSERT_TRUE(SamgrHostControl::KillSystemAbility(SHARE_MANAGER_SA_ID));
    SamgrHostControl::Reset();
    EXPECT_TRUE(LogCapture::Has(CLIENT_TAG, "Recv death notice", LOG_DEBUG));
    EXPECT_EQ(Client().GetShareManagerSrvProxy(), nullptr);
}

TEST_F(ShareManagerConnectionTest, DeathNoticeWithoutRemoteChangesNothing)
{
    ASSERT_EQ(Client().Connect(), 0);
    sptr<IWidgetService> proxy = Client().GetShareManagerSrvProxy();
    sptr<ShareManagerClient::ShareManagerDeathRecipient> recipient =
        new ShareManagerClient::ShareManagerDeathRecipient();
    recipient->OnRemoteDied(nullptr);
    EXPECT_TRUE(LogCapture::Has(CLIENT_TAG, "OnRemoteDied failed, remote is nullptr", LOG_ERROR));
    EXPECT_EQ(Client().GetShareManagerSrvProxy(), proxy);
}

} // namespace
} // namespace Zelkon
} // namespace OHOS
