/*
 * Many callers while the share manager service is killed and started again: every call returns the service's
 * answer or the neutral result, the died callback is replaced meanwhile, and nothing crashes or races.
 */
#include <atomic>
#include <memory>
#include <thread>
#include <vector>

#include "share_manager_harness.h"

namespace OHOS {
namespace Zelkon {
namespace {

TEST_F(ShareManagerTest, CallersSurviveTheServiceDyingAndComingBack)
{
    constexpr int CALLERS = 4;
    constexpr int CALLS = 300;
    constexpr int RESTARTS = 6;
    std::atomic<int> answered{0};
    std::atomic<int> unexpected{0};
    std::atomic<int> finished{0};
    std::vector<std::thread> callers;
    for (int t = 0; t < CALLERS; ++t) {
        callers.emplace_back([&, t] {
            for (int i = 0; i < CALLS; ++i) {
                if (t % 2 == 0) {
                    answered += Client().IsEnabled() ? 1 : 0;
                } else {
                    // The default service answers true, which reads as a count of 1 and then a short record.
                    unexpected += Client().GetAllUserList().empty() ? 0 : 1;
                }
            }
            ++finished;
        });
    }
    std::thread registrar([&] {
        while (finished.load() < CALLERS) {
            auto callback = std::make_shared<CountingDiedCallback>();
            Client().RegisterDiedCallback(callback);
            std::this_thread::yield();
        }
    });
    for (int restart = 0; restart < RESTARTS; ++restart) {
        SamgrHostControl::KillSystemAbility(SHARE_MANAGER_SA_ID);
        stub_ = StartService();
    }
    for (std::thread& caller : callers) {
        caller.join();
    }
    registrar.join();
    EXPECT_EQ(unexpected.load(), 0);
    EXPECT_GT(answered.load(), 0);
    // After the last restart the client reaches the running service again.
    EXPECT_TRUE(Client().IsEnabled());
}

} // namespace
} // namespace Zelkon
} // namespace OHOS
