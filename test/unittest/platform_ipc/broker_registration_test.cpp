#include <gtest/gtest.h>

#include <atomic>
#include <memory>

#include "ipc_object_proxy.h"
#include "iremote_broker.h"
#include "iremote_proxy.h"
#include "iremote_stub.h"

namespace OHOS {
namespace {

class ITestService : public IRemoteBroker {
public:
    DECLARE_INTERFACE_DESCRIPTOR(u"test.ITestService");
    virtual int Ping() = 0;
};

class TestServiceProxy : public IRemoteProxy<ITestService> {
public:
    explicit TestServiceProxy(const sptr<IRemoteObject>& object) : IRemoteProxy<ITestService>(object) {}
    int Ping() override { return 1; }
};

class TestServiceStub : public IRemoteStub<ITestService> {
public:
    int Ping() override { return 2; }
};

// Counts the proxies it creates, so a test can see which creator ran.
struct CountingCreator {
    std::shared_ptr<std::atomic<int>> calls = std::make_shared<std::atomic<int>>(0);
    sptr<IRemoteBroker> operator()(const sptr<IRemoteObject>& object) const
    {
        ++*calls;
        return BrokerCreator<TestServiceProxy>()(object);
    }
};

class BrokerRegistrationTest : public testing::Test {
protected:
    void TearDown() override { BrokerRegistration::Get().Unregister(ITestService::GetDescriptor()); }

    BrokerRegistration& registry_ = BrokerRegistration::Get();
    sptr<IRemoteObject> remote_ = new IPCObjectProxy(new TestServiceStub());
};

TEST_F(BrokerRegistrationTest, FirstRegistrationWins)
{
    CountingCreator first;
    CountingCreator second;
    EXPECT_TRUE(registry_.Register(ITestService::GetDescriptor(), first, nullptr));
    EXPECT_FALSE(registry_.Register(ITestService::GetDescriptor(), second, nullptr));
    EXPECT_NE(registry_.NewInstance(ITestService::GetDescriptor(), remote_), nullptr);
    EXPECT_EQ(*first.calls, 1);
    EXPECT_EQ(*second.calls, 0);
}

TEST_F(BrokerRegistrationTest, EmptyDescriptorIsRefused)
{
    EXPECT_FALSE(registry_.Register(u"", CountingCreator(), nullptr));
}

TEST_F(BrokerRegistrationTest, UnregisterForgetsTheCreator)
{
    ASSERT_TRUE(registry_.Register(ITestService::GetDescriptor(), CountingCreator(), nullptr));
    registry_.Unregister(ITestService::GetDescriptor());
    registry_.Unregister(ITestService::GetDescriptor());
    EXPECT_EQ(registry_.NewInstance(ITestService::GetDescriptor(), remote_), nullptr);
    EXPECT_TRUE(registry_.Register(ITestService::GetDescriptor(), CountingCreator(), nullptr));
}

TEST_F(BrokerRegistrationTest, RemoteObjectGetsTheRegisteredProxyWhateverItsDescriptor)
{
    ASSERT_TRUE(registry_.Register(ITestService::GetDescriptor(), CountingCreator(), nullptr));
    sptr<IRemoteObject> otherKind = new IPCObjectProxy(new IPCObjectStub(u"test.Other"));
    for (const sptr<IRemoteObject>& object : {remote_, otherKind}) {
        sptr<ITestService> service = iface_cast<ITestService>(object);
        ASSERT_NE(service, nullptr);
        EXPECT_EQ(service->Ping(), 1);
        EXPECT_EQ(service->AsObject(), object);
    }
}

TEST_F(BrokerRegistrationTest, LocalObjectIsItsOwnInterfaceAndNeverGetsTheProxy)
{
    CountingCreator creator;
    ASSERT_TRUE(registry_.Register(ITestService::GetDescriptor(), creator, nullptr));
    sptr<TestServiceStub> stub = new TestServiceStub();
    sptr<ITestService> service = iface_cast<ITestService>(stub->AsObject());
    EXPECT_EQ(service.GetRefPtr(), static_cast<ITestService*>(stub.GetRefPtr()));

    sptr<IRemoteObject> otherLocal = new IPCObjectStub(u"test.Other");
    EXPECT_EQ(iface_cast<ITestService>(otherLocal), nullptr);
    EXPECT_EQ(*creator.calls, 0);
}

TEST_F(BrokerRegistrationTest, NullObjectOrNoCreatorGivesNull)
{
    EXPECT_EQ(registry_.NewInstance(ITestService::GetDescriptor(), nullptr), nullptr);
    EXPECT_EQ(registry_.NewInstance(ITestService::GetDescriptor(), remote_), nullptr);
}

TEST_F(BrokerRegistrationTest, DelegatorRegistersForItsLifetimeOnlyIfFirst)
{
    {
        BrokerDelegator<TestServiceProxy> delegator;
        EXPECT_EQ(delegator.descriptor_, ITestService::GetDescriptor());
        {
            BrokerDelegator<TestServiceProxy> late;
            EXPECT_TRUE(late.descriptor_.empty());
        }
        // The late one did not own the registration, so it did not remove it.
        EXPECT_NE(iface_cast<ITestService>(remote_), nullptr);
    }
    EXPECT_EQ(iface_cast<ITestService>(remote_), nullptr);
}

} // namespace
} // namespace OHOS
