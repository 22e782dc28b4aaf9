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
    // Every load starts a new instance of the service; the test kills the one that runs. The loader owns what it
    // shares with the test: a load asked for by the last calls may run after the test body has returned.
    struct Instances {
        std::mutex mutex;
        sptr<ScriptedStub> running;
    };
    auto instances = std::make_shared<Instances>();
    SamgrHostControl::RegisterLoader(SHARE_SERVICE_SA_ID, [instances] {
        std::lock_guard<std::mutex> lock(instances->mutex);
        instances->running = new ScriptedStub(ZelkonService::GetDescriptor());
        return sptr<IRemoteObject>(instances->running);
    });
    auto callback = std::make_shared<CountingDiedCallback>();
    Client().RegisterDiedCallback(callback);
    constexpr int CALLERS = 4;
    constexpr int KILLS = 5;
    std::atomic<bool> stop{false};
    std::atomic<int> answered{0};
    std::atomic<int> unexpected{0};
    std::vector<std::thread> callers;
    sptr<IPublishListener> listener = new TestRemote<IPublishListener>();
    // The callers call until every kill is done, so each kill meets callers in flight, whatever the scheduler does.
    for (int t = 0; t < CALLERS; ++t) {
        callers.emplace_back([&, t] {
            for (int i = 0; !stop.load(); ++i) {
                int32_t result = (t % 2 == 0) ? Client().EnableDiscoveryPolicy(i) : Client().Publish(listener);
                if (result == 1) {
                    ++answered;
                } else if (result != 0) {
                    ++unexpected;
                }
            }
        });
    }
    // Each round kills an instance once a caller has got through to it, and waits until the client has heard of
    // it. (An instance killed before the client attached its death recipient would leave the client waiting for
    // good: that is how the client is meant to behave, not what this test is about.)
    int kills = 0;
    for (bool killed = true; killed && kills < KILLS;) {
        const auto deadline = std::chrono::steady_clock::now() + std::chrono::seconds(10);
        sptr<ScriptedStub> victim;
        while (victim == nullptr && std::chrono::steady_clock::now() < deadline) {
            {
                std::lock_guard<std::mutex> lock(instances->mutex);
                if (instances->running != nullptr && !instances->running->Codes().empty()) {
                    victim = instances->running;
                    instances->running = nullptr;
                }
            }
            std::this_thread::sleep_for(std::chrono::milliseconds(1));
        }
        killed = victim != nullptr && SamgrHostControl::KillSystemAbility(SHARE_SERVICE_SA_ID) &&
                 callback->WaitForCount(kills + 1);
        kills += killed ? 1 : 0;
    }
    stop = true;
    for (std::thread& caller : callers) {
        caller.join();
    }
    EXPECT_EQ(kills, KILLS) << "an instance did not answer, or its death was not told, after kill " << kills;
    EXPECT_EQ(unexpected.load(), 0);
    EXPECT_GT(answered.load(), 0);
    // The recipient is attached once per instance: each death is told once.
    EXPECT_EQ(callback->Count(), KILLS);
}

} // namespace
} // namespace Zelkon
} // namespace OHOS
