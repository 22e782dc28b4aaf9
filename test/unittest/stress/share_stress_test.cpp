/*
 * Both clients under load while the emulated services die and come back: 8 threads call a mix of operations of
 * both clients while another thread kills and restarts both services a few hundred times and registers, replaces
 * and releases the died callbacks. Every call must give the fresh service's answer or the neutral one, nothing may
 * hang (a watchdog aborts), and each died callback must run once per death of the object its client was connected
 * to.
 */
#include <atomic>
#include <chrono>
#include <condition_variable>
#include <cstdio>
#include <cstdlib>
#include <functional>
#include <memory>
#include <mutex>
#include <string>
#include <thread>
#include <vector>

#include <gtest/gtest.h>

#include "ipc_threads.h"
#include "samgr_host_control.h"
#include "share_client.h"
#include "share_emulator.h"
#include "share_manager_client.h"

namespace OHOS {
namespace Zelkon {
namespace {

constexpr int WORKERS = 8;
constexpr int CALLS_PER_WORKER = 300;
constexpr int RESTARTS = 200;
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
            kept_.push_back({share, manager, 0});
            registered_ = static_cast<int>(kept_.size()) - 1;
        }
    }
    // Both services died once while both clients were connected to them.
    void Died()
    {
        if (registered_ != NONE) {
            ++kept_[registered_].expectedCalls;
        }
    }
    void Expect() const
    {
        for (size_t i = 0; i < kept_.size(); ++i) {
            EXPECT_EQ(kept_[i].share->calls.load(), kept_[i].expectedCalls) << "share died callback " << i;
            EXPECT_EQ(kept_[i].manager->calls.load(), kept_[i].expectedCalls) << "manager died callback " << i;
        }
    }

private:
    struct Kept {
        std::shared_ptr<CountingShareDiedCallback> share;
        std::shared_ptr<CountingManagerDiedCallback> manager;
        int expectedCalls;
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

TEST(ShareStressTest, CallsSurviveServiceDeathsAndEachDeathIsReportedOnce)
{
    SamgrHostControl::Reset();
    ShareEmulator::Install();
    Watchdog watchdog;
    DiedCallbacks callbacks;
    std::atomic<int> wrong{0};
    std::vector<std::thread> workers;
    for (int worker = 0; worker < WORKERS; ++worker) {
        workers.emplace_back([worker, &wrong] {
            for (int i = 0; i < CALLS_PER_WORKER; ++i) {
                const Call& call = CALLS[(worker + i) % CALLS.size()];
                if (!call.answered()) {
                    ADD_FAILURE() << call.name << " gave neither the service's answer nor the neutral result";
                    ++wrong;
                }
            }
        });
    }
    int unreached = 0;
    for (int round = 0; round < RESTARTS; ++round) {
        callbacks.Change(round);
        if (!ConnectBoth()) {
            ++unreached;
            continue;
        }
        ShareEmulator::KillShareService();
        ShareEmulator::KillShareManagerService();
        callbacks.Died();
        // A fresh share manager; the share service comes back at the next load.
        ShareEmulator::Install();
        // The death notices run on IPC threads; they are all delivered before the callbacks change again.
        IpcThreads::Drain();
    }
    for (std::thread& worker : workers) {
        worker.join();
    }
    IpcThreads::Drain();
    EXPECT_EQ(wrong.load(), 0);
    EXPECT_EQ(unreached, 0) << "rounds in which a service could not be reached";
    callbacks.Expect();
    ShareEmulator::Uninstall();
    SamgrHostControl::Reset();
}

} // namespace
} // namespace Zelkon
} // namespace OHOS
