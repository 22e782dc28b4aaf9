// Strong and weak counts, the callbacks, destruction exactly once on the last strong reference, and what a weak
// reference can still do afterwards.
#include <gtest/gtest.h>

#include <functional>
#include <string>
#include <utility>

#include "refbase.h"
#include "tracked_object.h"

namespace OHOS {
namespace {

constexpr int NEVER_HELD = 1 << 28;

class DerivedObject : public TrackedObject {
public:
    using TrackedObject::TrackedObject;
};

TEST(RefBaseTest, AFreshObjectWasNeverHeld)
{
    Lifecycle lifecycle;
    auto* object = new TrackedObject(lifecycle);
    EXPECT_EQ(object->GetSptrRefCount(), NEVER_HELD);
    EXPECT_EQ(object->GetWptrRefCount(), 0);
    EXPECT_FALSE(object->IsExtendedLifetime());
    delete object;
    EXPECT_EQ(lifecycle.firstStrong.load(), 0);
    EXPECT_EQ(lifecycle.destroyed.load(), 1);
}

TEST(RefBaseTest, StrongCountFollowsCopiesMovesAndConversions)
{
    Lifecycle lifecycle;
    sptr<TrackedObject> first = sptr<TrackedObject>::MakeSptr(lifecycle);
    EXPECT_EQ(first->GetSptrRefCount(), 1);
    EXPECT_EQ(lifecycle.firstStrong.load(), 1);
    {
        sptr<TrackedObject> copy(first);
        EXPECT_EQ(first->GetSptrRefCount(), 2);
        sptr<TrackedObject> moved(std::move(copy));
        EXPECT_EQ(copy, nullptr);
        EXPECT_EQ(first->GetSptrRefCount(), 2);
        sptr<RefBase> base(first);
        EXPECT_EQ(first->GetSptrRefCount(), 3);
        sptr<RefBase> movedBase(std::move(moved));
        EXPECT_EQ(moved, nullptr);
        EXPECT_EQ(first->GetSptrRefCount(), 3);
        sptr<TrackedObject> assigned;
        assigned = first;
        EXPECT_EQ(first->GetSptrRefCount(), 4);
    }
    EXPECT_EQ(first->GetSptrRefCount(), 1);
    EXPECT_EQ(lifecycle.firstStrong.load(), 1);
    EXPECT_EQ(lifecycle.lastStrong.load(), 0);
    EXPECT_EQ(lifecycle.destroyed.load(), 0);
}

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

TEST(RefBaseTest, PromotingANeverHeldObjectHandsItOver)
{
    Lifecycle lifecycle;
    wptr<TrackedObject> weak(new TrackedObject(lifecycle));
    {
        sptr<TrackedObject> promoted = weak.promote();
        ASSERT_NE(promoted, nullptr);
        EXPECT_EQ(promoted->GetSptrRefCount(), 1);
    }
    EXPECT_EQ(lifecycle.destroyed.load(), 1);
    EXPECT_EQ(weak.promote(), nullptr);
}

TEST(RefBaseTest, AWeakReferenceOutlivingANeverHeldObjectCannotPromote)
{
    Lifecycle lifecycle;
    wptr<TrackedObject> weak;
    {
        TrackedObject local(lifecycle);
        weak = &local;
        EXPECT_EQ(weak.GetRefPtr(), &local);
    }
    EXPECT_EQ(weak.GetRefPtr(), nullptr);
    EXPECT_EQ(weak.promote(), nullptr);
    EXPECT_EQ(lifecycle.destroyed.load(), 1);
}

} // namespace
} // namespace OHOS
