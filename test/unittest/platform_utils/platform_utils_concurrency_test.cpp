// Races on the platform utilities: promotion against the last release and the first use of a singleton. Run under
// ThreadSanitizer by its label.
#include <gtest/gtest.h>

#include <atomic>
#include <condition_variable>
#include <functional>
#include <mutex>
#include <set>
#include <thread>
#include <type_traits>
#include <vector>

#include "refbase.h"
#include "singleton.h"
#include "tracked_object.h"

namespace OHOS {
namespace {

// All parties wait until the last one arrives; reusable round after round.
class RoundGate {
public:
    explicit RoundGate(int parties) : parties_(parties) {}

    void ArriveAndWait()
    {
        std::unique_lock<std::mutex> lock(mutex_);
        const int round = round_;
        if (++arrived_ == parties_) {
            arrived_ = 0;
            ++round_;
            released_.notify_all();
            return;
        }
        released_.wait(lock, [this, round] { return round_ != round; });
    }

private:
    std::mutex mutex_;
    std::condition_variable released_;
    const int parties_;
    int arrived_ = 0;
    int round_ = 0;
};

// Runs `work(index)` on `count` threads that all start together.
void RunTogether(int count, const std::function<void(int)>& work)
{
    RoundGate start(count);
    std::vector<std::thread> threads;
    for (int i = 0; i < count; ++i) {
        threads.emplace_back([&start, &work, i] {
            start.ArriveAndWait();
            work(i);
        });
    }
    for (std::thread& thread : threads) {
        thread.join();
    }
}

TEST(PlatformUtilsConcurrencyTest, PromotionRacingTheLastReleaseNeverRevivesTheObject)
{
    constexpr int ROUNDS = 2000;
    constexpr int PROMOTERS = 3;
    constexpr int ATTEMPTS = 8;
    RoundGate gate(PROMOTERS + 1);
    wptr<TrackedObject> target;
    std::atomic<int> deadSeen{0};
    std::atomic<int> revived{0};
    std::atomic<bool> done{false};
    int badRounds = 0;

    std::vector<std::thread> promoters;
    for (int i = 0; i < PROMOTERS; ++i) {
        promoters.emplace_back([&] {
            while (true) {
                gate.ArriveAndWait();
                if (done) {
                    return;
                }
                bool failed = false;
                for (int attempt = 0; attempt < ATTEMPTS; ++attempt) {
                    sptr<TrackedObject> promoted = target.promote();
                    if (promoted == nullptr) {
                        failed = true;
                        continue;
                    }
                    revived += failed ? 1 : 0;
                    deadSeen += promoted->State() == TrackedObject::ALIVE ? 0 : 1;
                }
                gate.ArriveAndWait();
            }
        });
    }

    for (int round = 0; round < ROUNDS; ++round) {
        Lifecycle lifecycle;
        sptr<TrackedObject> held = sptr<TrackedObject>::MakeSptr(lifecycle);
        target = held;
        gate.ArriveAndWait();
        held.clear();
        gate.ArriveAndWait();
        const bool releasedOnce = lifecycle.destroyed == 1 && lifecycle.lastStrong == 1 && target.promote() == nullptr;
        badRounds += releasedOnce ? 0 : 1;
        target = nullptr;
    }
    done = true;
    gate.ArriveAndWait();
    for (std::thread& promoter : promoters) {
        promoter.join();
    }
    EXPECT_EQ(badRounds, 0);
    EXPECT_EQ(deadSeen.load(), 0);
    EXPECT_EQ(revived.load(), 0);
}

std::atomic<int> g_registryConstructions{0};

class Registry : public DelayedRefSingleton<Registry> {
    DECLARE_DELAYED_REF_SINGLETON(Registry)
};

Registry::Registry()
{
    ++g_registryConstructions;
}

Registry::~Registry() = default;

static_assert(!std::is_copy_constructible_v<Registry> && !std::is_move_constructible_v<Registry>);

TEST(PlatformUtilsConcurrencyTest, TheFirstUsesOfASingletonFromManyThreadsShareOneInstance)
{
    constexpr int THREADS = 8;
    std::mutex mutex;
    std::set<const Registry*> instances;
    RunTogether(THREADS, [&](int) {
        const Registry* instance = &Registry::GetInstance();
        std::lock_guard<std::mutex> lock(mutex);
        instances.insert(instance);
    });
    EXPECT_EQ(instances.size(), 1u);
    EXPECT_EQ(g_registryConstructions.load(), 1);
    EXPECT_EQ(&Registry::GetInstance(), *instances.begin());
    EXPECT_EQ(g_registryConstructions.load(), 1);
}

} // namespace
} // namespace OHOS
