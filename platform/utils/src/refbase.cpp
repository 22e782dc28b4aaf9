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

#include "refbase.h"

namespace OHOS {

RefCounter::RefCounter(RefBase* object) : object_(object) {}

int RefCounter::GetRefCount()
{
    return atomicRefCount_.load(std::memory_order_relaxed);
}

void RefCounter::IncRefCount()
{
    atomicRefCount_.fetch_add(1, std::memory_order_relaxed);
}

void RefCounter::DecRefCount()
{
    if (atomicRefCount_.load(std::memory_order_relaxed) > 0 &&
        atomicRefCount_.fetch_sub(1, std::memory_order_acq_rel) == 1) {
        delete this;
    }
}

bool RefCounter::IsRefPtrValid()
{
    return object_.load(std::memory_order_acquire) != nullptr;
}

void RefCounter::RemoveCallback()
{
    object_.store(nullptr, std::memory_order_release);
}

void RefCounter::DeleteObject()
{
    RefBase* object = object_.load(std::memory_order_acquire);
    if (object != nullptr) {
        object->RefPtrCallback();
    }
}

int RefCounter::IncStrongRefCount(const void*)
{
    int previous = atomicStrong_.load(std::memory_order_relaxed);
    if (previous >= 0) {
        previous = atomicStrong_.fetch_add(1, std::memory_order_relaxed);
        // The first strong reference takes the count from its initial value to 1.
        if (previous == INITIAL_PRIMARY_VALUE) {
            atomicStrong_.fetch_sub(INITIAL_PRIMARY_VALUE, std::memory_order_release);
        }
    }
    return previous;
}

int RefCounter::DecStrongRefCount(const void*)
{
    int previous = atomicStrong_.load(std::memory_order_relaxed);
    // Never strongly held: there is nothing to release.
    if (previous > 0 && previous != INITIAL_PRIMARY_VALUE) {
        previous = atomicStrong_.fetch_sub(1, std::memory_order_acq_rel);
    }
    return previous;
}

int RefCounter::GetStrongRefCount()
{
    return atomicStrong_.load(std::memory_order_relaxed);
}

int RefCounter::IncWeakRefCount(const void*)
{
    return atomicWeak_.fetch_add(1, std::memory_order_relaxed);
}

int RefCounter::DecWeakRefCount(const void*)
{
    int previous = atomicWeak_.load(std::memory_order_relaxed);
    if (previous > 0) {
        previous = atomicWeak_.fetch_sub(1, std::memory_order_acq_rel);
    }
    if (previous != 1) {
        return previous;
    }
    // The last weak reference: an object that outlives its strong references, or never had one, goes now (and
    // lets go of the counter in its destructor); otherwise the object is already gone and only the counter is left.
    if (IsLifeTimeExtended() || GetStrongRefCount() == INITIAL_PRIMARY_VALUE) {
        DeleteObject();
    } else {
        DecRefCount();
    }
    return previous;
}

int RefCounter::GetWeakRefCount()
{
    return atomicWeak_.load(std::memory_order_relaxed);
}

bool RefCounter::AttemptIncStrongRef(const void* objectId, int& outCount)
{
    IncWeakRefCount(objectId);
    int previous = GetStrongRefCount();
    bool taken = false;
    // Held strongly: one more, unless the last one goes meanwhile.
    while (!taken && previous > 0 && previous != INITIAL_PRIMARY_VALUE) {
        taken = atomicStrong_.compare_exchange_weak(previous, previous + 1, std::memory_order_relaxed);
    }
    // Never held strongly: the first strong reference.
    if (!taken && previous == INITIAL_PRIMARY_VALUE && !IsLifeTimeExtended()) {
        while (!taken && previous > 0) {
            taken = atomicStrong_.compare_exchange_weak(previous, previous + 1, std::memory_order_relaxed);
        }
    }
    // An extended lifetime revives an object whose strong references are all gone.
    if (!taken && IsLifeTimeExtended()) {
        previous = atomicStrong_.fetch_add(1, std::memory_order_relaxed);
        taken = true;
    }
    if (previous == INITIAL_PRIMARY_VALUE) {
        outCount = previous;
        atomicStrong_.fetch_sub(INITIAL_PRIMARY_VALUE, std::memory_order_release);
        return true;
    }
    if (!taken || previous < 0) {
        DecWeakRefCount(objectId);
        return false;
    }
    return true;
}

bool RefCounter::IsLifeTimeExtended()
{
    return extendedLifetime_.load(std::memory_order_relaxed);
}

void RefCounter::ExtendObjectLifetime()
{
    extendedLifetime_.store(true, std::memory_order_relaxed);
}

WeakRefCounter::WeakRefCounter(RefCounter* counter, void* cookie) : refCounter_(counter), cookie_(cookie)
{
    refCounter_->IncRefCount();
}

WeakRefCounter::~WeakRefCounter()
{
    refCounter_->DecRefCount();
}

void* WeakRefCounter::GetRefPtr()
{
    return refCounter_->IsRefPtrValid() ? cookie_ : nullptr;
}

void WeakRefCounter::IncWeakRefCount(const void* objectId)
{
    if (atomicWeak_.fetch_add(1, std::memory_order_relaxed) == 0) {
        refCounter_->IncWeakRefCount(objectId);
    }
}

void WeakRefCounter::DecWeakRefCount(const void* objectId)
{
    if (atomicWeak_.fetch_sub(1, std::memory_order_acq_rel) == 1) {
        refCounter_->DecWeakRefCount(objectId);
        delete this;
    }
}

int WeakRefCounter::GetWeakRefCount() const
{
    return atomicWeak_.load(std::memory_order_relaxed);
}

bool WeakRefCounter::AttemptIncStrongRef(const void* objectId)
{
    int unused = 0;
    return refCounter_->AttemptIncStrongRef(objectId, unused);
}

RefBase::RefBase() = default;

RefBase::RefBase(const RefBase&) {}

RefBase& RefBase::operator=(const RefBase&)
{
    return *this;
}

RefBase::RefBase(RefBase&&) noexcept {}

RefBase& RefBase::operator=(RefBase&&) noexcept
{
    return *this;
}

RefBase::~RefBase()
{
    RefCounter* refs = refs_.load(std::memory_order_acquire);
    if (refs == nullptr) {
        return;
    }
    refs->RemoveCallback();
    // Otherwise the last weak reference lets go of the counter.
    if ((refs->IsLifeTimeExtended() && refs->GetWeakRefCount() == 0) ||
        refs->GetStrongRefCount() == INITIAL_PRIMARY_VALUE) {
        refs->DecRefCount();
    }
}

void RefBase::RefPtrCallback()
{
    delete this;
}

RefCounter* RefBase::GetRefCounter() const
{
    RefCounter* refs = refs_.load(std::memory_order_acquire);
    if (refs != nullptr) {
        return refs;
    }
    // Two first references at once: one counter wins, the other is dropped unused.
    auto* created = new RefCounter(const_cast<RefBase*>(this));
    created->IncRefCount();
    if (refs_.compare_exchange_strong(refs, created, std::memory_order_acq_rel, std::memory_order_acquire)) {
        return created;
    }
    delete created;
    return refs;
}

void RefBase::ExtendObjectLifetime()
{
    GetRefCounter()->ExtendObjectLifetime();
}

bool RefBase::IsExtendLifeTimeSet()
{
    RefCounter* refs = refs_.load(std::memory_order_acquire);
    return refs != nullptr && refs->IsLifeTimeExtended();
}

void RefBase::IncStrongRef(const void* objectId)
{
    RefCounter* refs = GetRefCounter();
    refs->IncWeakRefCount(objectId);
    if (refs->IncStrongRefCount(objectId) == INITIAL_PRIMARY_VALUE) {
        OnFirstStrongRef(objectId);
    }
}

void RefBase::DecStrongRef(const void* objectId)
{
    // The object may be deleted below; the counter outlives it until the last weak reference.
    RefCounter* const refs = GetRefCounter();
    if (refs->DecStrongRefCount(objectId) == 1) {
        OnLastStrongRef(objectId);
        if (!refs->IsLifeTimeExtended()) {
            refs->DeleteObject();
        }
    }
    refs->DecWeakRefCount(objectId);
}

int RefBase::GetSptrRefCount()
{
    RefCounter* refs = refs_.load(std::memory_order_acquire);
    return refs != nullptr ? refs->GetStrongRefCount() : INITIAL_PRIMARY_VALUE;
}

WeakRefCounter* RefBase::CreateWeakRef(void* cookie)
{
    return new WeakRefCounter(GetRefCounter(), cookie);
}

void RefBase::IncWeakRef(const void* objectId)
{
    GetRefCounter()->IncWeakRefCount(objectId);
}

void RefBase::DecWeakRef(const void* objectId)
{
    GetRefCounter()->DecWeakRefCount(objectId);
}

int RefBase::GetWptrRefCount()
{
    RefCounter* refs = refs_.load(std::memory_order_acquire);
    return refs != nullptr ? refs->GetWeakRefCount() : 0;
}

bool RefBase::AttemptIncStrongRef(const void* objectId)
{
    if (!OnAttemptPromoted(objectId)) {
        return false;
    }
    int previous = 0;
    const bool taken = GetRefCounter()->AttemptIncStrongRef(objectId, previous);
    if (previous == INITIAL_PRIMARY_VALUE) {
        OnFirstStrongRef(objectId);
    }
    return taken;
}

void RefBase::OnFirstStrongRef(const void*) {}

void RefBase::OnLastStrongRef(const void*) {}

void RefBase::OnLastWeakRef(const void*) {}

bool RefBase::OnAttemptPromoted(const void*)
{
    return true;
}

} // namespace OHOS
