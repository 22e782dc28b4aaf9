#include "refbase.h"

namespace OHOS {

bool RefCounter::AttemptIncStrong()
{
    int current = strong.load(std::memory_order_relaxed);
    while (current != 0) {
        int next = current == INITIAL_PRIMARY_VALUE ? 1 : current + 1;
        if (strong.compare_exchange_weak(current, next, std::memory_order_acq_rel, std::memory_order_relaxed)) {
            return true;
        }
    }
    return false;
}

void RefCounter::ReleaseHolder()
{
    if (holders.fetch_sub(1, std::memory_order_acq_rel) == 1) {
        delete this;
    }
}

RefBase::RefBase() : refs_(new RefCounter()) {}

// A copy is a different object: it gets counts of its own.
RefBase::RefBase(const RefBase&) : refs_(new RefCounter()) {}

RefBase& RefBase::operator=(const RefBase&)
{
    return *this;
}

RefBase::RefBase(RefBase&&) noexcept : refs_(new RefCounter()) {}

RefBase& RefBase::operator=(RefBase&&) noexcept
{
    return *this;
}

RefBase::~RefBase()
{
    refs_->objectAlive.store(false, std::memory_order_release);
    refs_->ReleaseHolder();
}

void RefBase::IncStrongRef(const void* objectId)
{
    int current = refs_->strong.load(std::memory_order_relaxed);
    int next;
    do {
        next = current == INITIAL_PRIMARY_VALUE ? 1 : current + 1;
    } while (!refs_->strong.compare_exchange_weak(current, next, std::memory_order_acq_rel, std::memory_order_relaxed));
    if (current == INITIAL_PRIMARY_VALUE) {
        OnFirstStrongRef(objectId);
    }
}

void RefBase::DecStrongRef(const void* objectId)
{
    if (refs_->strong.fetch_sub(1, std::memory_order_acq_rel) != 1) {
        return;
    }
    OnLastStrongRef(objectId);
    if (!extendedLifetime_) {
        delete this;
    }
}

bool RefBase::AttemptIncStrongRef(const void* objectId)
{
    if (!refs_->AttemptIncStrong()) {
        return false;
    }
    return OnAttemptPromoted(objectId);
}

void RefBase::IncWeakRef(const void*)
{
    refs_->weak.fetch_add(1, std::memory_order_relaxed);
}

void RefBase::DecWeakRef(const void* objectId)
{
    if (refs_->weak.fetch_sub(1, std::memory_order_acq_rel) == 1) {
        OnLastWeakRef(objectId);
    }
}

int RefBase::GetSptrRefCount() const
{
    return refs_->strong.load(std::memory_order_relaxed);
}

int RefBase::GetWptrRefCount() const
{
    return refs_->weak.load(std::memory_order_relaxed);
}

void RefBase::OnFirstStrongRef(const void*) {}

void RefBase::OnLastStrongRef(const void*) {}

void RefBase::OnLastWeakRef(const void*) {}

bool RefBase::OnAttemptPromoted(const void*)
{
    return true;
}

} // namespace OHOS
