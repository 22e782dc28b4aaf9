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

RefBase::RefBase() = default;

// A copy is a different object: it gets counts of its own.
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
    if (refs != nullptr) {
        refs->objectAlive.store(false, std::memory_order_release);
        refs->ReleaseHolder();
    }
}

RefCounter* RefBase::GetRefCounter() const
{
    RefCounter* refs = refs_.load(std::memory_order_acquire);
    if (refs != nullptr) {
        return refs;
    }
    // Two first references at once: one counter wins, the other is dropped unused.
    auto* created = new RefCounter();
    if (refs_.compare_exchange_strong(refs, created, std::memory_order_acq_rel, std::memory_order_acquire)) {
        return created;
    }
    delete created;
    return refs;
}

void RefBase::IncStrongRef(const void* objectId)
{
    RefCounter* refs = GetRefCounter();
    int current = refs->strong.load(std::memory_order_relaxed);
    int next;
    do {
        next = current == INITIAL_PRIMARY_VALUE ? 1 : current + 1;
    } while (!refs->strong.compare_exchange_weak(current, next, std::memory_order_acq_rel, std::memory_order_relaxed));
    if (current == INITIAL_PRIMARY_VALUE) {
        OnFirstStrongRef(objectId);
    }
}

void RefBase::DecStrongRef(const void* objectId)
{
    if (GetRefCounter()->strong.fetch_sub(1, std::memory_order_acq_rel) != 1) {
        return;
    }
    OnLastStrongRef(objectId);
    if (!extendedLifetime_) {
        delete this;
    }
}

bool RefBase::AttemptIncStrongRef(const void* objectId)
{
    if (!GetRefCounter()->AttemptIncStrong()) {
        return false;
    }
    return OnAttemptPromoted(objectId);
}

void RefBase::IncWeakRef(const void*)
{
    GetRefCounter()->weak.fetch_add(1, std::memory_order_relaxed);
}

void RefBase::DecWeakRef(const void* objectId)
{
    if (GetRefCounter()->weak.fetch_sub(1, std::memory_order_acq_rel) == 1) {
        OnLastWeakRef(objectId);
    }
}

int RefBase::GetSptrRefCount() const
{
    RefCounter* refs = refs_.load(std::memory_order_acquire);
    return refs != nullptr ? refs->strong.load(std::memory_order_relaxed) : INITIAL_PRIMARY_VALUE;
}

int RefBase::GetWptrRefCount() const
{
    RefCounter* refs = refs_.load(std::memory_order_acquire);
    return refs != nullptr ? refs->weak.load(std::memory_order_relaxed) : 0;
}

void RefBase::OnFirstStrongRef(const void*) {}

void RefBase::OnLastStrongRef(const void*) {}

void RefBase::OnLastWeakRef(const void*) {}

bool RefBase::OnAttemptPromoted(const void*)
{
    return true;
}

} // namespace OHOS
