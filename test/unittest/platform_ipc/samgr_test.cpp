#include <gtest/gtest.h>

#include <atomic>
#include <chrono>
#include <condition_variable>
#include <mutex>
#include <thread>

#include "ipc_test_helpers.h"
#include "iservice_registry.h"
#include "samgr_host_control.h"
#include "system_ability_load_callback_stub.h"

namespace OHOS {
namespace {

constexpr int32_t SA_ID = 4610;
constexpr int32_t OTHER_ID = 4611;

// Records each outcome, where it ran, and whether the load request had already returned by then.
class LoadOutcome : public SystemAbilityLoadCallbackStub {
public:
    using SystemAbilityLoadCallbackStub::OnLoadSystemAbilityFail;

    // Holds the "returned" mark while the caller is inside LoadSystemAbility.
    int32_t Load(const sptr<ISystemAbilityManager>& manager, int32_t id)
    {
        std::lock_guard<std::mutex> lock(mutex_);
        caller_ = std::this_thread::get_id();
        const int32_t result = manager->LoadSystemAbility(id, this);
        returned_ = true;
        return result;
    }

    void OnLoadSystemAbilitySuccess(int32_t id, const sptr<IRemoteObject>& object) override
    {
        Record(true, id, object);
    }
    void OnLoadSystemAbilityFail(int32_t id) override { Record(false, id, nullptr); }

    void Wait()
    {
        std::unique_lock<std::mutex> lock(mutex_);
        changed_.wait(lock, [this] { return calls_ > 0; });
    }

    int calls_ = 0;
    bool success_ = false;
    int32_t id_ = -1;
    sptr<IRemoteObject> object_;
    bool afterReturn_ = false;
    bool onIpcThread_ = false;

private:
    void Record(bool success, int32_t id, const sptr<IRemoteObject>& object)
    {
        // A callback on the caller's own thread would run inside LoadSystemAbility, which holds the lock.
        const bool callerThread = std::this_thread::get_id() == caller_.load();
        std::unique_lock<std::mutex> lock(mutex_, std::defer_lock);
        if (!callerThread) {
            lock.lock();
        }
        ++calls_;
        success_ = success;
        id_ = id;
        object_ = object;
        afterReturn_ = !callerThread && returned_;
        onIpcThread_ = IpcThreads::IsIpcThread();
        changed_.notify_all();
    }

    std::mutex mutex_;
    std::condition_variable changed_;
    std::atomic<std::thread::id> caller_;
    bool returned_ = false;
};

class SamgrTest : public testing::Test {
protected:
    void SetUp() override
    {
        SamgrHostControl::Reset();
        manager_ = SystemAbilityManagerClient::GetInstance().GetSystemAbilityManager();
        ASSERT_NE(manager_, nullptr);
    }
    void TearDown() override { SamgrHostControl::Reset(); }

    // Loads and waits for the outcome.
    sptr<LoadOutcome> LoadAndWait(int32_t id)
    {
        sptr<LoadOutcome> outcome = new LoadOutcome();
        EXPECT_EQ(outcome->Load(manager_, id), ERR_OK);
        outcome->Wait();
        IpcThreads::Drain();
        return outcome;
    }

    sptr<ISystemAbilityManager> manager_;
    sptr<RecordingStub> stub_ = new RecordingStub();
};

TEST_F(SamgrTest, LoaderStartsTheAbilityOnceOnDemand)
{
    std::atomic<int> starts{0};
    SamgrHostControl::RegisterLoader(SA_ID, [this, &starts]() -> sptr<IRemoteObject> {
        ++starts;
        return stub_;
    });
    EXPECT_EQ(manager_->CheckSystemAbility(SA_ID), nullptr);
    sptr<LoadOutcome> first = LoadAndWait(SA_ID);
    sptr<LoadOutcome> second = LoadAndWait(SA_ID);
    ASSERT_TRUE(first->success_);
    EXPECT_TRUE(first->object_->IsProxyObject());
    EXPECT_EQ(second->object_, first->object_);
    EXPECT_EQ(manager_->CheckSystemAbility(SA_ID), first->object_);
    EXPECT_EQ(starts, 1);
    EXPECT_EQ(SamgrHostControl::LoadCount(SA_ID), 2);
}

TEST_F(SamgrTest, ScriptedOutcomes)
{
    const struct {
        const char* name;
        LoadScript script;
        bool success;
        int32_t id;
        bool withObject;
    } cases[] = {
        {"fail", {LoadScript::Outcome::FAIL}, false, SA_ID, false},
        {"null object", {LoadScript::Outcome::NULL_OBJECT}, true, SA_ID, false},
        {"other id", {LoadScript::Outcome::OTHER_ID, std::chrono::milliseconds(0), OTHER_ID}, true, OTHER_ID, true},
        {"succeed", {LoadScript::Outcome::SUCCEED}, true, SA_ID, true},
    };
    ASSERT_EQ(manager_->AddSystemAbility(SA_ID, stub_), ERR_OK);
    for (const auto& c : cases) {
        SamgrHostControl::ScriptLoads(c.script);
        sptr<LoadOutcome> outcome = LoadAndWait(SA_ID);
        EXPECT_EQ(outcome->calls_, 1) << c.name;
        EXPECT_EQ(outcome->success_, c.success) << c.name;
        EXPECT_EQ(outcome->id_, c.id) << c.name;
        EXPECT_EQ(outcome->object_ != nullptr, c.withObject) << c.name;
        EXPECT_TRUE(outcome->afterReturn_) << c.name;
        EXPECT_TRUE(outcome->onIpcThread_) << c.name;
    }
    EXPECT_EQ(SamgrHostControl::LoadCount(SA_ID), 4);
}

TEST_F(SamgrTest, RefusedLoadReturnsTheScriptedCodeWithoutCallback)
{
    ASSERT_EQ(manager_->AddSystemAbility(SA_ID, stub_), ERR_OK);
    LoadScript refuse{LoadScript::Outcome::REFUSE};
    refuse.refuseCode = ERR_INVALID_OPERATION;
    SamgrHostControl::ScriptLoads(refuse, 2);
    for (int i = 0; i < 2; ++i) {
        sptr<LoadOutcome> outcome = new LoadOutcome();
        EXPECT_EQ(outcome->Load(manager_, SA_ID), ERR_INVALID_OPERATION);
        IpcThreads::Drain();
        EXPECT_EQ(outcome->calls_, 0);
    }
    EXPECT_EQ(SamgrHostControl::LoadCount(SA_ID), 2);
    // The script is used up: loads behave normally again.
    EXPECT_TRUE(LoadAndWait(SA_ID)->success_);
}

TEST_F(SamgrTest, KilledAbilityIsDeadAbsentAndLoadableAgain)
{
    SamgrHostControl::RegisterLoader(SA_ID, [] { return sptr<IRemoteObject>(new RecordingStub()); });
    sptr<IRemoteObject> before = LoadAndWait(SA_ID)->object_;
    ASSERT_NE(before, nullptr);
    sptr<CountingRecipient> recipient = new CountingRecipient();
    ASSERT_TRUE(before->AddDeathRecipient(recipient));

    EXPECT_TRUE(SamgrHostControl::KillSystemAbility(SA_ID));
    EXPECT_FALSE(SamgrHostControl::KillSystemAbility(SA_ID));
    recipient->WaitForCalls(1);
    IpcThreads::Drain();
    EXPECT_EQ(recipient->Calls(), 1);
    EXPECT_TRUE(recipient->OnIpcThread());
    EXPECT_EQ(recipient->Died(), before);

    MessageParcel data;
    MessageParcel reply;
    MessageOption option;
    EXPECT_EQ(before->SendRequest(1, data, reply, option), ERR_DEAD_OBJECT);
    EXPECT_EQ(manager_->CheckSystemAbility(SA_ID), nullptr);

    sptr<IRemoteObject> after = LoadAndWait(SA_ID)->object_;
    ASSERT_NE(after, nullptr);
    EXPECT_NE(after, before);
    EXPECT_FALSE(after->IsObjectDead());
}

} // namespace
} // namespace OHOS
