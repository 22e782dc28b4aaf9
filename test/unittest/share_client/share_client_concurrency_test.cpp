/*
 * Several callers while the service is killed and loaded again: every call returns the service's answer or the
 * neutral result, and nothing crashes or races.
 */
#include <atomic>
#include <mutex>
#include <thread>
#include <vector>

#include "share_service_harness.h"

namespace OHOS {
namespace Zelkon {
namespace {

TEST_F(ShareServiceTest, CallersSurviveTheServiceDyingAndComingBack)
{
    // Every load starts a new instance of the service; the test kills the one that runs.
    std::mutex runningMutex;
    sptr<ScriptedStub> running;
    SamgrHostControl::RegisterLoader(SHARE_SERVICE_SA_ID, [&] {
        std::lock_guard<std::mutex> lock(runningMutex);
        running = new ScriptedStub(ZelkonService::GetDescriptor());
        return sptr<IRemoteObject>(running);
    });
    auto callback = std::make_shared<CountingDiedCallback>();
    Client().RegisterDiedCallback(callback);
    constexpr int CALLERS = 4;
    constexpr int CALLS = 200;
    constexpr int KILLS = 5;
    std::atomic<int> answered{0};
    std::atomic<int> unexpected{0};
    std::atomic<int> finished{0};
    std::vector<std::thread> callers;
    sptr<IPublishListener> listener = new TestRemote<IPublishListener>();
    for (int t = 0; t < CALLERS; ++t) {
        callers.emplace_back([&, t] {
            for (int i = 0; i < CALLS; ++i) {
                int32_t result = (t % 2 == 0) ? Client().EnableDiscoveryPolicy(i) : Client().Publish(listener);
                if (result == 1) {
                    ++answered;
                } else if (result != 0) {
                    ++unexpected;
                }
            }
            ++finished;
        });
    }
    // Kill the running instance once a caller has got through to it, and wait until the client has heard of it.
    // (An instance killed before the client attached its death recipient would leave the client waiting for
    // good: that is how the client is meant to behave, not what this test is about.)
    int kills = 0;
    while (kills < KILLS && finished.load() < CALLERS) {
        sptr<ScriptedStub> victim;
        {
            std::lock_guard<std::mutex> lock(runningMutex);
            if (running != nullptr && !running->Codes().empty()) {
                victim = running;
                running = nullptr;
            }
        }
        if (victim == nullptr) {
            std::this_thread::yield();
            continue;
        }
        ASSERT_TRUE(SamgrHostControl::KillSystemAbility(SHARE_SERVICE_SA_ID));
        ++kills;
        ASSERT_TRUE(callback->WaitForCount(kills));
    }
    for (std::thread& caller : callers) {
        caller.join();
    }
    EXPECT_EQ(unexpected.load(), 0);
    EXPECT_GT(answered.load(), 0);
    // Callers that find no proxy each ask for a load; every answer attaches one more recipient to the instance,
    // so one death may be told more than once.
    EXPECT_GE(callback->Count(), kills);
    EXPECT_GE(kills, 1);
}

} // namespace
} // namespace Zelkon
} // namespace OHOS
