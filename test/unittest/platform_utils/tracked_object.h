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
    std::atomic<int> lastWeak{0};
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
    void OnLastWeakRef(const void*) override { ++lifecycle_.lastWeak; }

    // ALIVE until the destructor ran.
    int State() const { return state_; }

private:
    Lifecycle& lifecycle_;
    int state_ = ALIVE;
};

} // namespace OHOS

#endif // TRACKED_OBJECT_H
