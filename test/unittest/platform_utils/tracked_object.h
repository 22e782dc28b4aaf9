/*
 * A reference-counted object that records its lifecycle callbacks and its destruction, for the reference counting
 * tests.
 */
#ifndef TRACKED_OBJECT_H
#define TRACKED_OBJECT_H

#include <atomic>

#include "refbase.h"

namespace OHOS {

struct Lifecycle {
    std::atomic<int> firstStrong{0};
    std::atomic<int> lastStrong{0};
    std::atomic<int> destroyed{0};
};

class TrackedObject : public RefBase {
public:
    static constexpr int ALIVE = 0x600DF00D;

    explicit TrackedObject(Lifecycle& lifecycle) : lifecycle_(lifecycle) {}
    ~TrackedObject() override
    {
        state_ = 0;
        ++lifecycle_.destroyed;
    }

    void OnFirstStrongRef(const void*) override { ++lifecycle_.firstStrong; }
    void OnLastStrongRef(const void*) override { ++lifecycle_.lastStrong; }

    // ALIVE until the destructor ran.
    int State() const { return state_; }

private:
    Lifecycle& lifecycle_;
    int state_ = ALIVE;
};

} // namespace OHOS

#endif // TRACKED_OBJECT_H
