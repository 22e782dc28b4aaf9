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

TEST(RefBaseTest, AssigningAnSptrToItselfKeepsTheObject)
{
    Lifecycle lifecycle;
    sptr<TrackedObject> held = sptr<TrackedObject>::MakeSptr(lifecycle);
    TrackedObject* raw = held.GetRefPtr();
    sptr<TrackedObject>& alias = held;

    held = alias;
    EXPECT_EQ(held.GetRefPtr(), raw);
    EXPECT_EQ(raw->GetSptrRefCount(), 1);
    held = std::move(alias);
    EXPECT_EQ(held.GetRefPtr(), raw);
    EXPECT_EQ(raw->GetSptrRefCount(), 1);
    held = raw;
    EXPECT_EQ(held.GetRefPtr(), raw);
    EXPECT_EQ(raw->GetSptrRefCount(), 1);
    EXPECT_EQ(lifecycle.destroyed.load(), 0);
    EXPECT_EQ(lifecycle.lastStrong.load(), 0);
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

TEST(RefBaseTest, WeakCountFollowsWeakReferences)
{
    Lifecycle lifecycle;
    sptr<TrackedObject> held = sptr<TrackedObject>::MakeSptr(lifecycle);
    {
        wptr<TrackedObject> fromSptr(held);
        wptr<TrackedObject> fromRaw(held.GetRefPtr());
        wptr<TrackedObject> copy(fromSptr);
        EXPECT_EQ(held->GetWptrRefCount(), 3);
        wptr<TrackedObject> moved(std::move(copy));
        EXPECT_EQ(held->GetWptrRefCount(), 3);
        wptr<RefBase> base(moved);
        EXPECT_EQ(held->GetWptrRefCount(), 4);
        moved = fromRaw;
        EXPECT_EQ(held->GetWptrRefCount(), 4);
        EXPECT_EQ(held->GetSptrRefCount(), 1);
        EXPECT_TRUE(moved == held);
    }
    EXPECT_EQ(held->GetWptrRefCount(), 0);
    EXPECT_EQ(lifecycle.destroyed.load(), 0);
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

TEST(RefBaseTest, AnExtendedLifetimeSurvivesItsLastStrongReference)
{
    Lifecycle lifecycle;
    auto* object = new TrackedObject(lifecycle);
    object->ExtendObjectLifetime();
    wptr<TrackedObject> weak(object);
    sptr<TrackedObject>(object).clear();
    EXPECT_EQ(lifecycle.lastStrong.load(), 1);
    EXPECT_EQ(lifecycle.destroyed.load(), 0);
    EXPECT_EQ(object->State(), TrackedObject::ALIVE);
    EXPECT_EQ(weak.promote(), nullptr);
    EXPECT_EQ(weak.GetRefPtr(), object);
    delete object;
    EXPECT_EQ(weak.GetRefPtr(), nullptr);
    EXPECT_EQ(lifecycle.destroyed.load(), 1);
}

TEST(RefBaseTest, ExplicitWeakReferencesReportTheLastOneOnce)
{
    Lifecycle lifecycle;
    sptr<TrackedObject> held = sptr<TrackedObject>::MakeSptr(lifecycle);
    held->IncWeakRef(nullptr);
    held->IncWeakRef(nullptr);
    EXPECT_EQ(held->GetWptrRefCount(), 2);
    held->DecWeakRef(nullptr);
    EXPECT_EQ(lifecycle.lastWeak.load(), 0);
    held->DecWeakRef(nullptr);
    EXPECT_EQ(lifecycle.lastWeak.load(), 1);
    EXPECT_EQ(held->GetWptrRefCount(), 0);
    EXPECT_TRUE(held->AttemptIncStrongRef(nullptr));
    EXPECT_EQ(held->GetSptrRefCount(), 2);
    held->DecStrongRef(nullptr);
    EXPECT_EQ(lifecycle.destroyed.load(), 0);
}

TEST(RefBaseTest, ACopiedObjectHasCountsOfItsOwn)
{
    Lifecycle lifecycle;
    sptr<TrackedObject> original = sptr<TrackedObject>::MakeSptr(lifecycle);
    wptr<TrackedObject> weak(original);
    TrackedObject copy(*original);
    EXPECT_EQ(copy.GetSptrRefCount(), NEVER_HELD);
    EXPECT_EQ(copy.GetWptrRefCount(), 0);
    EXPECT_NE(copy.GetRefCounter(), original->GetRefCounter());
    static_cast<RefBase&>(copy) = *original;
    EXPECT_EQ(copy.GetSptrRefCount(), NEVER_HELD);
    EXPECT_EQ(original->GetSptrRefCount(), 1);
    EXPECT_EQ(original->GetWptrRefCount(), 1);
}

TEST(RefBaseTest, ComparisonsAreOnTheRawPointer)
{
    Lifecycle lifecycle;
    sptr<DerivedObject> derived = sptr<DerivedObject>::MakeSptr(lifecycle);
    const sptr<TrackedObject> base(derived);
    sptr<TrackedObject> other = sptr<TrackedObject>::MakeSptr(lifecycle);
    wptr<TrackedObject> weak(base);
    EXPECT_TRUE(base == static_cast<const TrackedObject*>(derived.GetRefPtr()));
    EXPECT_TRUE(base == weak);
    EXPECT_TRUE(weak == base);
    EXPECT_TRUE(base != other);
    EXPECT_TRUE(other != weak);
    EXPECT_TRUE(static_cast<bool>(base));
    EXPECT_FALSE(static_cast<bool>(sptr<TrackedObject>()));
}

} // namespace
} // namespace OHOS
