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
 * Both clients under load while the emulated services die and come back: 8 threads call a mix of operations of
 * both clients while another thread kills and restarts both services a few hundred times and registers, replaces
 * and releases the died callbacks. Every call must give the fresh service's answer or the neutral one, nothing may
 * hang (a watchdog aborts), and each died callback must run once per death of the object its client was connected
 * to. In this process the services die together; in processes of their own (SIGKILLed by their manager, a child
 * of this process) they die in turns, and no descriptor or process may be left once the manager has stopped.
 */
#include <atomic>
#include <chrono>
#include <condition_variable>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <functional>
#include <memory>
#include <mutex>
#include <string>
#include <thread>
#include <vector>

#include <gtest/gtest.h>

#include "ipc_host_transport.h"
#include "ipc_threads.h"
#include "iservice_registry.h"
#include "process_table.h"
#include "samgr_host_control.h"
#include "services_in_processes.h"
#include "share_client.h"
#include "share_emulator.h"
#include "share_manager_client.h"
#include "world.h"

namespace OHOS {
namespace Zelkon {
namespace {

constexpr int WORKERS = 8;
constexpr int CALLS_PER_WORKER = 300;
constexpr int RESTARTS_IN_PROCESS = 200;
// Each restart across processes is a process killed and one started: a sanitizer build takes a second for some.
constexpr int RESTARTS_ACROSS_PROCESSES = 40;
constexpr int CONNECT_ATTEMPTS = 100;
constexpr std::chrono::seconds WATCHDOG_LIMIT{60};

ShareClient& Share()
{
    return ShareClient::GetInstance();
}

ShareManagerClient& Manager()
{
    return ShareManagerClient::GetInstance();
}

// One operation: true when the caller got what a fresh service answers, or the neutral result.
struct Call {
    const char* name;
    std::function<bool()> answered;
};

const std::vector<Call> CALLS = {
    {"EnableDiscoveryPolicy",
     [] {
         const int32_t result = Share().EnableDiscoveryPolicy(1);
         return result == 1 || result == 0;
     }},
    {"GetPontalPublishInfo",
     [] {
         std::string info = "untouched";
         const int32_t result = Share().GetPontalPublishInfo(info);
         return (result == 1 && info.find("Emulated host") != std::string::npos) ||
                (result == 0 && info == "untouched");
     }},
    {"GetPermanentDeviceList",
     [] {
         const size_t count = Share().GetPermanentDeviceList().size();
         return count == 3 || count == 0;
     }},
    {"GetEnableState",
     [] {
         const int32_t state = Manager().GetEnableState();
         return state == 1 || state == 0;
     }},
    {"GetAllUserList",
     [] {
         const size_t count = Manager().GetAllUserList().size();
         return count == 3 || count == 0;
     }},
    {"GetAccountInfo",
     [] {
         const ShareAccountInfo account = Manager().GetAccountInfo();
         return (account.nickName == "Robin" && account.callingUid == 20010042) ||
                (account.nickName.empty() && account.callingUid == -1);
     }},
    {"GetPreviewData",
     [] {
         const std::string preview = Manager().GetPreviewData();
         return preview.empty() || preview.rfind("preview line 1:", 0) == 0;
     }},
};

class CountingShareDiedCallback : public ShareSaDiedCallback {
public:
    void OnShareSaDied() override { ++calls; }
    std::atomic<int> calls{0};
};

class CountingManagerDiedCallback : public ShareManagerDiedCallback {
public:
    void OnShareManagerDied() override { ++calls; }
    std::atomic<int> calls{0};
};

// Aborts the process when the test has not finished in time: a deadlock must fail, not hang the suite.
class Watchdog {
public:
    Watchdog() :
        thread_([this] {
            std::unique_lock<std::mutex> lock(mutex_);
            if (!done_.wait_for(lock, WATCHDOG_LIMIT, [this] { return finished_; })) {
                fprintf(stderr, "stress test still running after %llds: deadlock\n",
                        static_cast<long long>(WATCHDOG_LIMIT.count()));
                abort();
            }
        })
    {
    }
    ~Watchdog()
    {
        {
            std::lock_guard<std::mutex> lock(mutex_);
            finished_ = true;
        }
        done_.notify_all();
        thread_.join();
    }

private:
    std::mutex mutex_;
    std::condition_variable done_;
    bool finished_ = false;
    std::thread thread_;
};

// The died callbacks of both clients, changed by the killer between deaths in a cycle of five rounds: registered,
// kept, replaced, cleared, and registered then released by their owner. Each callback that is still owned counts
// the deaths it must have been told of.
class DiedCallbacks {
public:
    void Change(int round)
    {
        const int step = round % CYCLE;
        if (step == 1) {
            return;
        }
        auto share = std::make_shared<CountingShareDiedCallback>();
        auto manager = std::make_shared<CountingManagerDiedCallback>();
        Share().RegisterDiedCallback(step == CLEAR ? nullptr : share);
        Manager().RegisterDiedCallback(step == CLEAR ? nullptr : manager);
        registered_ = NONE;
        if (step != CLEAR && step != RELEASE) {
            kept_.push_back({share, manager, 0, 0});
            registered_ = static_cast<int>(kept_.size()) - 1;
        }
    }
    // The services died once each, as said, while both clients were connected to them.
    void Died(bool share, bool manager)
    {
        if (registered_ != NONE) {
            kept_[registered_].shareDeaths += share ? 1 : 0;
            kept_[registered_].managerDeaths += manager ? 1 : 0;
        }
    }
    void Expect() const
    {
        for (size_t i = 0; i < kept_.size(); ++i) {
            EXPECT_EQ(kept_[i].share->calls.load(), kept_[i].shareDeaths) << "share died callback " << i;
            EXPECT_EQ(kept_[i].manager->calls.load(), kept_[i].managerDeaths) << "manager died callback " << i;
        }
    }

private:
    struct Kept {
        std::shared_ptr<CountingShareDiedCallback> share;
        std::shared_ptr<CountingManagerDiedCallback> manager;
        int shareDeaths;
        int managerDeaths;
    };
    static constexpr int CYCLE = 5;
    static constexpr int CLEAR = 3;
    static constexpr int RELEASE = 4;
    static constexpr int NONE = -1;

    std::vector<Kept> kept_;
    int registered_ = NONE;
};

// Calls both services until one call of each reached the running generation, so that the coming death is one of
// an object that each client is connected to.
bool ConnectBoth()
{
    bool share = false;
    bool manager = false;
    for (int attempt = 0; attempt < CONNECT_ATTEMPTS && !(share && manager); ++attempt) {
        share = share || Share().EnableDiscoveryPolicy(1) == 1;
        manager = manager || Manager().IsEnabled();
    }
    return share && manager;
}

size_t OpenDescriptors()
{
    return static_cast<size_t>(
        std::distance(std::filesystem::directory_iterator("/proc/self/fd"), std::filesystem::directory_iterator()));
}

// The share manager service is not loaded on demand: it is restarted as its world does.
void RestartShareManager(World world)
{
    if (world == World::IN_PROCESS) {
        ShareEmulator::Install();
        return;
    }
    sptr<ISystemAbilityManager> manager = SystemAbilityManagerClient::GetInstance().GetSystemAbilityManager();
    EXPECT_TRUE(manager != nullptr && manager->GetSystemAbility(EMULATED_SHARE_MANAGER_ID) != nullptr);
}

class ShareStressTest : public testing::TestWithParam<World> {};

TEST_P(ShareStressTest, CallsSurviveServiceDeathsAndEachDeathIsReportedOnce)
{
    const World world = GetParam();
    SamgrHostControl::Reset();
    std::unique_ptr<ServicesInProcesses> processes;
    if (world == World::ACROSS_PROCESSES) {
        // A first use of the transport opens what it keeps for the life of the process (its own address).
        processes = std::make_unique<ServicesInProcesses>();
        processes->Enter();
        RestartShareManager(world);
        const pid_t samgr = processes->SamgrPid();
        processes.reset();
        ASSERT_TRUE(IpcHostTransport::WaitForPeerGone(samgr, std::chrono::seconds(5)));
    }
    const size_t descriptorsBefore = OpenDescriptors();
    if (world == World::ACROSS_PROCESSES) {
        processes = std::make_unique<ServicesInProcesses>();
        ASSERT_TRUE(processes->Started());
        processes->Enter();
        ASSERT_TRUE(SamgrHostControl::IsAcrossProcesses());
    }
    RestartShareManager(world);
    Watchdog watchdog;
    DiedCallbacks callbacks;
    std::atomic<int> wrong{0};
    std::atomic<bool> killing{true};
    std::vector<std::thread> workers;
    for (int worker = 0; worker < WORKERS; ++worker) {
        workers.emplace_back([worker, &wrong, &killing] {
            for (int i = 0; i < CALLS_PER_WORKER || killing; ++i) {
                const Call& call = CALLS[(worker + i) % CALLS.size()];
                if (!call.answered()) {
                    ADD_FAILURE() << call.name << " gave neither the service's answer nor the neutral result";
                    ++wrong;
                }
            }
        });
    }
    int unreached = 0;
    int missedKills = 0;
    const int restarts = world == World::IN_PROCESS ? RESTARTS_IN_PROCESS : RESTARTS_ACROSS_PROCESSES;
    for (int round = 0; round < restarts; ++round) {
        callbacks.Change(round);
        if (!ConnectBoth()) {
            ++unreached;
            continue;
        }
        // Across processes the services die in turns, each death a SIGKILL of the process.
        const bool share = world == World::IN_PROCESS || round % 2 == 0;
        const bool manager = world == World::IN_PROCESS || round % 2 == 1;
        missedKills += share && !ShareEmulator::KillShareService() ? 1 : 0;
        missedKills += manager && !ShareEmulator::KillShareManagerService() ? 1 : 0;
        callbacks.Died(share, manager);
        // The share service comes back at the next load.
        if (manager) {
            RestartShareManager(world);
        }
        // The death notices run on IPC threads; they are all delivered before the callbacks change again.
        IpcThreads::Drain();
    }
    killing = false;
    for (std::thread& worker : workers) {
        worker.join();
    }
    IpcThreads::Drain();
    EXPECT_EQ(wrong.load(), 0);
    EXPECT_EQ(unreached, 0) << "rounds in which a service could not be reached";
    EXPECT_EQ(missedKills, 0) << "kills of a service that was not running";
    callbacks.Expect();
    if (world == World::IN_PROCESS) {
        ShareEmulator::Uninstall();
        SamgrHostControl::Reset();
        return;
    }
    // Every killed process was reaped by the manager: what is left are the two running services and the share
    // service's next process, held.
    ASSERT_TRUE(ConnectBoth());
    const pid_t samgr = processes->SamgrPid();
    std::vector<pid_t> services = ChildrenOf(samgr);
    EXPECT_EQ(services.size(), 3u);
    processes.reset();
    EXPECT_FALSE(SamgrHostControl::IsAcrossProcesses());
    EXPECT_TRUE(Gone(samgr));
    EXPECT_TRUE(Eventually([&] { return ChildrenOf(getpid()).empty(); })) << "a child of the test is left";
    for (pid_t service : services) {
        EXPECT_TRUE(Eventually([service] { return Gone(service); })) << "service process " << service << " is left";
    }
    EXPECT_TRUE(IpcHostTransport::WaitForPeerGone(samgr, std::chrono::seconds(5)));
    EXPECT_EQ(IpcHostTransport::SessionCount(), 0u);
    EXPECT_TRUE(Eventually([&] { return OpenDescriptors() == descriptorsBefore; }))
        << OpenDescriptors() << " descriptors open, " << descriptorsBefore << " before";
}

INSTANTIATE_TEST_SUITE_P(Worlds, ShareStressTest, BOTH_WORLDS, WorldName);

} // namespace
} // namespace Zelkon
} // namespace OHOS
