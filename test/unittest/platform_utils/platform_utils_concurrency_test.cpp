// Promotion racing the last release: the object is destroyed once and never handed out afterwards. Run under
// ThreadSanitizer by its label.
#include <gtest/gtest.h>

#include <atomic>
#include <condition_variable>
#include <mutex>
#include <thread>
#include <vector>

#include "refbase.h"
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

} // namespace
} // namespace OHOS
