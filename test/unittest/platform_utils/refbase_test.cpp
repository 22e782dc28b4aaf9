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

// Destruction exactly once on the last strong reference, whichever way it goes, and promotion of a weak reference
// while the object is held and after it is gone.
#include <gtest/gtest.h>

#include <functional>
#include <string>
#include <utility>

#include "refbase.h"
#include "tracked_object.h"

namespace OHOS {
namespace {

TEST(RefBaseTest, TheLastStrongReferenceDestroysTheObjectOnceWhicheverWayItGoes)
{
    Lifecycle other;
    const struct {
        std::string name;
        std::function<void(sptr<TrackedObject>&)> drop;
    } cases[] = {
        {"clear", [](sptr<TrackedObject>& s) { s.clear(); }},
        {"assign null", [](sptr<TrackedObject>& s) { s = nullptr; }},
        {"assign another object", [&other](sptr<TrackedObject>& s) { s = new TrackedObject(other); }},
        {"copy-assign an empty sptr",
         [](sptr<TrackedObject>& s) {
             const sptr<TrackedObject> empty;
             s = empty;
         }},
        {"move-assign an empty sptr", [](sptr<TrackedObject>& s) { s = sptr<TrackedObject>(); }},
        {"moved out and dropped", [](sptr<TrackedObject>& s) { sptr<TrackedObject> taken(std::move(s)); }},
        {"moved into a base sptr and dropped", [](sptr<TrackedObject>& s) { sptr<RefBase> base(std::move(s)); }},
        {"copy-assigned into a base sptr that is reset",
         [](sptr<TrackedObject>& s) {
             sptr<RefBase> base;
             base = s;
             s.clear();
         }},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.name);
        Lifecycle lifecycle;
        sptr<TrackedObject> held = sptr<TrackedObject>::MakeSptr(lifecycle);
        wptr<TrackedObject> weak(held);
        c.drop(held);
        EXPECT_EQ(lifecycle.destroyed.load(), 1);
        EXPECT_EQ(lifecycle.lastStrong.load(), 1);
        EXPECT_EQ(lifecycle.firstStrong.load(), 1);
        EXPECT_EQ(weak.promote(), nullptr);
        EXPECT_EQ(weak.GetRefPtr(), nullptr);
        EXPECT_TRUE(weak == nullptr);
    }
}

TEST(RefBaseTest, PromoteGivesAStrongReferenceWhileTheObjectIsHeld)
{
    Lifecycle lifecycle;
    sptr<TrackedObject> held = sptr<TrackedObject>::MakeSptr(lifecycle);
    wptr<TrackedObject> weak(held);
    {
        sptr<TrackedObject> promoted = weak.promote();
        EXPECT_EQ(promoted, held);
        EXPECT_EQ(held->GetSptrRefCount(), 2);
        held = nullptr;
        EXPECT_EQ(lifecycle.destroyed.load(), 0);
        EXPECT_EQ(promoted->State(), TrackedObject::ALIVE);
    }
    EXPECT_EQ(lifecycle.destroyed.load(), 1);
    EXPECT_EQ(weak.promote(), nullptr);
}

} // namespace
} // namespace OHOS
