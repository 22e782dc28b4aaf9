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

// Destruction exactly once on the last strong reference, whichever way it goes, promotion of a weak reference
// while the object is held and after it is gone, and the counts and lifetimes of the platform's corners.
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
        {"moved into a base sptr, which copies, and both dropped",
         [](sptr<TrackedObject>& s) {
             sptr<RefBase> base(std::move(s));
             s.clear();
         }},
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
        EXPECT_EQ(lifecycle.lastWeak.load(), 0);
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

std::string Counts(RefBase& object)
{
    return std::to_string(object.GetSptrRefCount()) + "/" + std::to_string(object.GetWptrRefCount());
}

// Each row plays a scenario and says what it saw: counts as strong/weak, destructions, promotions.
TEST(RefBaseTest, CountsAndLifetimesAreThePlatformsInEveryCorner)
{
    const struct {
        const char* name;
        std::function<std::string(Lifecycle&)> scenario;
        std::string seen;
    } cases[] = {
        {"a strong reference is also a weak one",
         [](Lifecycle& l) {
             sptr<TrackedObject> held = sptr<TrackedObject>::MakeSptr(l);
             return Counts(*held);
         },
         "1/1"},
        {"each wptr made from an sptr counts once, its copies and moves not at all",
         [](Lifecycle& l) {
             sptr<TrackedObject> held = sptr<TrackedObject>::MakeSptr(l);
             wptr<TrackedObject> weak(held);
             const std::string one = Counts(*held);
             wptr<TrackedObject> copy(weak);
             wptr<TrackedObject> moved(std::move(weak));
             const std::string copies = Counts(*held);
             wptr<TrackedObject> other(held);
             return one + " " + copies + " " + Counts(*held) + (weak == held ? " moved-from kept" : " moved-from lost");
         },
         "1/2 1/2 1/3 moved-from kept"},
        {"moving a derived sptr into a base one copies",
         [](Lifecycle& l) {
             sptr<TrackedObject> held = sptr<TrackedObject>::MakeSptr(l);
             sptr<RefBase> base(std::move(held));
             sptr<RefBase> assigned;
             assigned = std::move(held);
             return std::string(held != nullptr ? "source kept " : "source lost ") + Counts(*base);
         },
         "source kept 3/3"},
        {"only ever held weakly: deleted with its last wptr",
         [](Lifecycle& l) {
             wptr<TrackedObject> weak(new TrackedObject(l));
             const std::string counts = Counts(*weak);
             weak = nullptr;
             return counts + " destroyed " + std::to_string(l.destroyed.load());
         },
         std::to_string(INITIAL_PRIMARY_VALUE) + "/1 destroyed 1"},
        {"only ever held weakly: a promotion is its first strong reference",
         [](Lifecycle& l) {
             wptr<TrackedObject> weak(new TrackedObject(l));
             std::string counts = Counts(*weak.promote());
             return counts + " destroyed " + std::to_string(l.destroyed.load());
         },
         "1/2 destroyed 1"},
        {"extended lifetime: promotes after the last sptr and lives until the last wptr",
         [](Lifecycle& l) {
             auto* object = new TrackedObject(l);
             object->ExtendObjectLifetime();
             sptr<TrackedObject> held(object);
             wptr<TrackedObject> weak(held);
             held = nullptr;
             std::string seen = "destroyed " + std::to_string(l.destroyed.load());
             seen += " promoted " + Counts(*weak.promote());
             seen += " then " + Counts(*object);
             weak = nullptr;
             return seen + " destroyed " + std::to_string(l.destroyed.load());
         },
         "destroyed 0 promoted 1/2 then 0/1 destroyed 1"},
        {"OnLastWeakRef is never called",
         [](Lifecycle& l) {
             {
                 sptr<TrackedObject> held = sptr<TrackedObject>::MakeSptr(l);
                 wptr<TrackedObject> weak(held);
             }
             {
                 wptr<TrackedObject> weak(new TrackedObject(l));
             }
             return "last weak " + std::to_string(l.lastWeak.load()) + ", destroyed " +
                    std::to_string(l.destroyed.load());
         },
         "last weak 0, destroyed 2"},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.name);
        Lifecycle lifecycle;
        EXPECT_EQ(c.scenario(lifecycle), c.seen);
    }
}

} // namespace
} // namespace OHOS
