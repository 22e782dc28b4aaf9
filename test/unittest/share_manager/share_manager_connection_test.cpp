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
 * How the client finds the share manager service, watches it and lets it go: a kept proxy, no system ability
 * manager, refused death recipients, a missing proxy creator, deaths of the current and of an older service.
 */
#include <memory>

#include "ipc_threads.h"
#include "iservice_registry.h"

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

    static sptr<IRemoteObject> Current() { return Client().GetShareManagerSrvProxy()->AsObject(); }
};

TEST_F(ShareManagerConnectionTest, ASecondConnectKeepsTheProxyWithoutALookup)
{
    EXPECT_EQ(Client().Connect(), 0);
    sptr<IWidgetService> first = Client().GetShareManagerSrvProxy();
    ASSERT_NE(first, nullptr);
    EXPECT_EQ(Client().Connect(), 0);
    EXPECT_EQ(Client().GetShareManagerSrvProxy(), first);
    EXPECT_EQ(SamgrHostControl::LookupCount(SHARE_MANAGER_SA_ID), 1);
    // Every call after the first finds the proxy: the two lookups of the proxy connect, too.
    const LogLine kept{CLIENT_TAG, LOG_INFO, "shareManagerSrvProxy already exists."};
    ExpectLines(log_, {{CLIENT_TAG, LOG_DEBUG, "Connecting WidgetService success"}, kept, kept, kept});
}

TEST_F(ShareManagerConnectionTest, NoSystemAbilityManagerOrARefusedDeathRecipientLeavesNoProxy)
{
    SamgrHostControl::SetManagerUnavailable(true);
    SystemAbilityManagerClient::GetInstance().DestroySystemAbilityManagerObject();
    EXPECT_EQ(Client().Connect(), -1);
    SamgrHostControl::SetManagerUnavailable(false);
    SamgrHostControl::SetDeathRecipientsRefused(true);
    EXPECT_EQ(Client().Connect(), -1);
    EXPECT_FALSE(Client().IsEnabled());
    ExpectLines(log_, {{CLIENT_TAG, LOG_ERROR, "GetSystemAbilityManager failed"},
                       {CLIENT_TAG, LOG_ERROR, "Add death recipient to share service failed"},
                       {CLIENT_TAG, LOG_ERROR, "Add death recipient to share service failed"}});
    EXPECT_TRUE(stub_->Codes().empty());
    SamgrHostControl::SetDeathRecipientsRefused(false);
    EXPECT_TRUE(Client().IsEnabled());
}

TEST_F(ShareManagerConnectionTest, AMissingProxyCreatorConnectsButHandsOutNull)
{
    // Take the creator away while this test runs; the registry accepts it again afterwards.
    BrokerRegistration::Get().Unregister(IWidgetService::GetDescriptor());
    EXPECT_EQ(Client().Connect(), 0);
    EXPECT_EQ(Client().GetShareManagerSrvProxy(), nullptr);
    EXPECT_FALSE(Client().IsEnabled());
    EXPECT_FALSE(Client().ApplyUriPermission("com.example"));
    EXPECT_EQ(Logged({CLIENT_TAG, LOG_ERROR, "shareManagerSrvProxy_ is nullptr"}), 2u);
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
    EXPECT_EQ(Logged({CLIENT_TAG, LOG_DEBUG, "Recv death notice"}), 1u);

    stub_ = StartService();
    ASSERT_TRUE(Client().IsEnabled());
    // The recipient is on the new object: its death is heard, too.
    KillAndWait(callback, 2);
    EXPECT_EQ(Client().GetShareManagerSrvProxy(), nullptr);
}

TEST_F(ShareManagerConnectionTest, EachServiceIsWatchedOnceAfterTheProxyWasDroppedByHand)
{
    auto callback = std::make_shared<CountingDiedCallback>();
    Client().RegisterDiedCallback(callback);
    ASSERT_EQ(Client().Connect(), 0);
    Client().ResetProxy(Current());
    ASSERT_EQ(Client().Connect(), 0);
    KillAndWait(callback, 1);
    IpcThreads::Drain();
    EXPECT_EQ(callback->Count(), 1);
}

TEST_F(ShareManagerConnectionTest, DeathOfAnOlderServiceKeepsTheCurrentProxy)
{
    auto callback = std::make_shared<CountingDiedCallback>();
    Client().RegisterDiedCallback(callback);
    ASSERT_EQ(Client().Connect(), 0);
    sptr<IWidgetService> old = Client().GetShareManagerSrvProxy();
    sptr<IRemoteObject> oldObject = old->AsObject();
    // A stale notice for an object the client no longer talks to changes nothing.
    Client().ResetProxy(sptr<IRemoteObject>(new ScriptedStub(IWidgetService::GetDescriptor())));
    EXPECT_EQ(Client().GetShareManagerSrvProxy(), old);

    KillAndWait(callback, 1);
    stub_ = StartService();
    sptr<IWidgetService> current = Client().GetShareManagerSrvProxy();
    ASSERT_NE(current, nullptr);
    ASSERT_NE(current->AsObject(), oldObject);
    Client().ResetProxy(oldObject);
    EXPECT_EQ(Client().GetShareManagerSrvProxy(), current);
}

TEST_F(ShareManagerConnectionTest, ADiedCallbackReleasedByItsOwnerIsNotCalled)
{
    auto callback = std::make_shared<CountingDiedCallback>();
    Client().RegisterDiedCallback(callback);
    std::weak_ptr<CountingDiedCallback> watched = callback;
    callback.reset();
    ASSERT_TRUE(Client().IsEnabled());
    ASSERT_TRUE(SamgrHostControl::KillSystemAbility(SHARE_MANAGER_SA_ID));
    SamgrHostControl::Reset();
    EXPECT_TRUE(watched.expired());
    EXPECT_EQ(Client().GetShareManagerSrvProxy(), nullptr);
}

} // namespace
} // namespace Zelkon
} // namespace OHOS
