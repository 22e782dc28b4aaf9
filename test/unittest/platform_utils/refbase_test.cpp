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
