/*
 * Both clients under load while their services die and come back: 8 threads call a mix of operations of both
 * clients while another thread kills and restarts both services a few hundred times and registers, replaces and
 * releases the died callbacks. Every call must give its result or the neutral one, nothing may hang (a watchdog
 * aborts), and each died callback must run once per death of the object its client was connected to.
 */
#include <atomic>
#include <chrono>
#include <condition_variable>
#include <cstdio>
#include <cstdlib>
#include <memory>
#include <mutex>
#include <string>
#include <thread>
#include <vector>

#include <gtest/gtest.h>

#include "ipc_threads.h"
#include "samgr_host_control.h"
#include "share_client.h"
#include "share_manager_client.h"
#include "stress_services.h"

namespace OHOS {
namespace Zelkon {
namespace {

constexpr int WORKERS = 8;
constexpr int CALLS_PER_WORKER = 300;
constexpr int RESTARTS = 200;
constexpr int CONNECT_ATTEMPTS = 100;
constexpr std::chrono::seconds WATCHDOG_LIMIT{60};

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

// Collects what went wrong on any thread; the first few messages are kept for the report.
class Findings {
public:
    void Add(const std::string& message)
    {
        std::lock_guard<std::mutex> lock(mutex_);
        if (messages_.size() < MAX_KEPT) {
            messages_.push_back(message);
        }
        ++count_;
    }
    void Expect() const
    {
        std::lock_guard<std::mutex> lock(mutex_);
        EXPECT_EQ(count_, 0);
        for (const std::string& message : messages_) {
            ADD_FAILURE() << message;
        }
    }

private:
    static constexpr size_t MAX_KEPT = 10;
    mutable std::mutex mutex_;
    std::vector<std::string> messages_;
    int count_ = 0;
};

// The died callbacks of both clients, changed by the killer between deaths in a cycle: registered, kept,
// replaced, cleared, and registered then released by their owner. Each callback that is still owned counts the
// deaths it must have been told of.
class DiedCallbacks {
public:
    void Change(int round)
    {
        switch (round % CYCLE) {
        case 0:
        case 2:
            kept_.push_back(Pair{std::make_shared<CountingShareDiedCallback>(),
                                 std::make_shared<CountingManagerDiedCallback>(), 0});
            Register(kept_.back());
            registered_ = static_cast<int>(kept_.size()) - 1;
            break;
        case 3:
            ShareClient::GetInstance().RegisterDiedCallback(nullptr);
            ShareManagerClient::GetInstance().RegisterDiedCallback(nullptr);
            registered_ = NONE;
            break;
        case 4:
            Register(Pair{std::make_shared<CountingShareDiedCallback>(),
                          std::make_shared<CountingManagerDiedCallback>(), 0});
            registered_ = NONE;
            break;
        default:
            break;
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
    struct Pair {
        std::shared_ptr<CountingShareDiedCallback> share;
        std::shared_ptr<CountingManagerDiedCallback> manager;
        int expectedCalls;
    };
    static constexpr int CYCLE = 5;
    static constexpr int NONE = -1;

    static void Register(const Pair& pair)
    {
        ShareClient::GetInstance().RegisterDiedCallback(pair.share);
        ShareManagerClient::GetInstance().RegisterDiedCallback(pair.manager);
    }

    std::vector<Pair> kept_;
    int registered_ = NONE;
};

class ShareStressTest : public testing::Test {
protected:
    void SetUp() override { services_.Start(); }
    void TearDown() override { SamgrHostControl::Reset(); }

    void CallMix(int worker)
    {
        for (int i = 0; i < CALLS_PER_WORKER; ++i) {
            const StressCall& call = services_.Calls()[(worker + i) % services_.Calls().size()];
            const std::string finding = call.run();
            if (!finding.empty()) {
                findings_.Add(call.name + ": " + finding);
            }
        }
    }

    // Calls both services until one call of each reached the running generation, so that the coming death is
    // one of an object that each client is connected to.
    bool ConnectBoth()
    {
        bool share = false;
        bool manager = false;
        for (int attempt = 0; attempt < CONNECT_ATTEMPTS && !(share && manager); ++attempt) {
            share = share || ShareClient::GetInstance().EnableDiscoveryPolicy(1) == 1;
            manager = manager || ShareManagerClient::GetInstance().IsEnabled();
        }
        return share && manager;
    }

    void KillAndRestart(DiedCallbacks& callbacks)
    {
        for (int round = 0; round < RESTARTS; ++round) {
            callbacks.Change(round);
            if (!ConnectBoth()) {
                findings_.Add("round " + std::to_string(round) + ": could not reach both services");
                continue;
            }
            services_.KillBoth();
            callbacks.Died();
            services_.RestartManager();
            // The death notices run on IPC threads; they are all delivered before the callbacks change again.
            IpcThreads::Drain();
        }
    }

    StressServices services_;
    Findings findings_;
};

TEST_F(ShareStressTest, CallsSurviveServiceDeathsAndEachDeathIsReportedOnce)
{
    Watchdog watchdog;
    DiedCallbacks callbacks;
    std::vector<std::thread> workers;
    for (int worker = 0; worker < WORKERS; ++worker) {
        workers.emplace_back([this, worker] { CallMix(worker); });
    }
    KillAndRestart(callbacks);
    for (std::thread& worker : workers) {
        worker.join();
    }
    IpcThreads::Drain();
    findings_.Expect();
    callbacks.Expect();
}

} // namespace
} // namespace Zelkon
} // namespace OHOS
