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
 * Reference counting of the platform: RefBase with strong and weak counts, sptr and wptr.
 * The counts live in a RefCounter that outlives the object while weak references remain, so a wptr can tell
 * that its object is gone.
 */
#ifndef UTILS_REFBASE_H
#define UTILS_REFBASE_H

#include <atomic>
#include <cstddef>
#include <new>
#include <utility>

namespace OHOS {

constexpr int INITIAL_PRIMARY_VALUE = 1 << 28;

class RefCounter {
public:
    // Strong count; INITIAL_PRIMARY_VALUE until the first strong reference.
    std::atomic<int> strong{INITIAL_PRIMARY_VALUE};
    // Weak references (wptr) currently held.
    std::atomic<int> weak{0};
    // Holders of this counter: the object while it lives, plus every wptr.
    std::atomic<int> holders{1};
    std::atomic<bool> objectAlive{true};

    // Takes a strong reference unless the last one is already gone.
    bool AttemptIncStrong();
    void ReleaseHolder();
};

class RefBase {
public:
    RefBase();
    RefBase(const RefBase& other);
    RefBase& operator=(const RefBase& other);
    RefBase(RefBase&& other) noexcept;
    RefBase& operator=(RefBase&& other) noexcept;
    virtual ~RefBase();

    void IncStrongRef(const void* objectId);
    void DecStrongRef(const void* objectId);
    bool AttemptIncStrongRef(const void* objectId);
    void IncWeakRef(const void* objectId);
    void DecWeakRef(const void* objectId);

    int GetSptrRefCount() const;
    int GetWptrRefCount() const;
    // Created on first need: a record that only ever lives in a container or on the stack never allocates one.
    RefCounter* GetRefCounter() const;

    // The object is no longer deleted when its last strong reference goes.
    void ExtendObjectLifetime() { extendedLifetime_ = true; }
    bool IsExtendedLifetime() const { return extendedLifetime_; }

    virtual void OnFirstStrongRef(const void* objectId);
    virtual void OnLastStrongRef(const void* objectId);
    virtual void OnLastWeakRef(const void* objectId);
    virtual bool OnAttemptPromoted(const void* objectId);

private:
    mutable std::atomic<RefCounter*> refs_{nullptr};
    bool extendedLifetime_ = false;
};

template <typename T>
class wptr;

template <typename T>
class sptr {
public:
    sptr() = default;
    sptr(std::nullptr_t) {}
    sptr(T* other) : refs_(other)
    {
        if (refs_ != nullptr) {
            refs_->IncStrongRef(this);
        }
    }
    sptr(const sptr& other) : sptr(other.refs_) {}
    sptr(sptr&& other) noexcept : refs_(other.refs_) { other.refs_ = nullptr; }
    template <typename O>
    sptr(const sptr<O>& other) : sptr(static_cast<T*>(other.GetRefPtr()))
    {
    }
    template <typename O>
    sptr(sptr<O>&& other) noexcept : refs_(static_cast<T*>(other.GetRefPtr()))
    {
        other.ForceSetRefPtr(nullptr);
    }
    ~sptr()
    {
        if (refs_ != nullptr) {
            refs_->DecStrongRef(this);
        }
    }

    sptr& operator=(const sptr& other)
    {
        sptr copy(other);
        std::swap(refs_, copy.refs_);
        return *this;
    }
    sptr& operator=(sptr&& other) noexcept
    {
        sptr moved(std::move(other));
        std::swap(refs_, moved.refs_);
        return *this;
    }
    sptr& operator=(T* other)
    {
        sptr copy(other);
        std::swap(refs_, copy.refs_);
        return *this;
    }
    template <typename O>
    sptr& operator=(const sptr<O>& other)
    {
        return *this = static_cast<T*>(other.GetRefPtr());
    }

    template <typename... Args>
    static sptr<T> MakeSptr(Args&&... args)
    {
        return sptr<T>(new T(std::forward<Args>(args)...));
    }

    T* GetRefPtr() const { return refs_; }
    T* operator->() const { return refs_; }
    T& operator*() const { return *refs_; }
    operator T*() const { return refs_; }
    explicit operator bool() const { return refs_ != nullptr; }

    bool operator==(std::nullptr_t) const { return refs_ == nullptr; }
    bool operator!=(std::nullptr_t) const { return refs_ != nullptr; }
    bool operator==(const T* other) const { return refs_ == other; }
    bool operator!=(const T* other) const { return refs_ != other; }
    bool operator==(const sptr& other) const { return refs_ == other.refs_; }
    bool operator!=(const sptr& other) const { return refs_ != other.refs_; }
    bool operator==(const wptr<T>& other) const { return refs_ == other.GetRefPtr(); }
    bool operator!=(const wptr<T>& other) const { return refs_ != other.GetRefPtr(); }

    void clear()
    {
        sptr released;
        std::swap(refs_, released.refs_);
    }
    // Replaces the pointer without touching any count.
    void ForceSetRefPtr(T* other) { refs_ = other; }

private:
    friend class wptr<T>;
    struct AdoptTag {};
    sptr(T* other, AdoptTag) : refs_(other) {}

    T* refs_ = nullptr;
};

template <typename T>
class wptr {
public:
    wptr() = default;
    wptr(std::nullptr_t) {}
    wptr(T* other) { Attach(other); }
    wptr(const sptr<T>& other) { Attach(other.GetRefPtr()); }
    template <typename O>
    wptr(const sptr<O>& other)
    {
        Attach(static_cast<T*>(other.GetRefPtr()));
    }
    wptr(const wptr& other) { Share(other.object_, other.refs_); }
    template <typename O>
    wptr(const wptr<O>& other)
    {
        Share(static_cast<T*>(other.object_), other.refs_);
    }
    wptr(wptr&& other) noexcept : object_(other.object_), refs_(other.refs_)
    {
        other.object_ = nullptr;
        other.refs_ = nullptr;
    }
    ~wptr() { Detach(); }

    wptr& operator=(const wptr& other)
    {
        wptr copy(other);
        Swap(copy);
        return *this;
    }
    wptr& operator=(wptr&& other) noexcept
    {
        wptr moved(std::move(other));
        Swap(moved);
        return *this;
    }
    wptr& operator=(T* other)
    {
        wptr copy(other);
        Swap(copy);
        return *this;
    }
    wptr& operator=(const sptr<T>& other)
    {
        wptr copy(other);
        Swap(copy);
        return *this;
    }

    // A strong reference, or null once the object's last strong reference has gone or the object was destroyed
    // (one never strongly held keeps its initial count when it dies).
    sptr<T> promote() const
    {
        if (GetRefPtr() == nullptr || !refs_->AttemptIncStrong()) {
            return nullptr;
        }
        return sptr<T>(object_, typename sptr<T>::AdoptTag{});
    }

    // The object, or null once it was destroyed.
    T* GetRefPtr() const
    {
        return (refs_ != nullptr && refs_->objectAlive.load(std::memory_order_acquire)) ? object_ : nullptr;
    }
    T* operator->() const { return GetRefPtr(); }
    T& operator*() const { return *GetRefPtr(); }

    bool operator==(std::nullptr_t) const { return GetRefPtr() == nullptr; }
    bool operator!=(std::nullptr_t) const { return GetRefPtr() != nullptr; }
    bool operator==(const T* other) const { return GetRefPtr() == other; }
    bool operator!=(const T* other) const { return GetRefPtr() != other; }
    bool operator==(const wptr& other) const { return GetRefPtr() == other.GetRefPtr(); }
    bool operator!=(const wptr& other) const { return GetRefPtr() != other.GetRefPtr(); }
    bool operator==(const sptr<T>& other) const { return GetRefPtr() == other.GetRefPtr(); }
    bool operator!=(const sptr<T>& other) const { return GetRefPtr() != other.GetRefPtr(); }

private:
    template <typename O>
    friend class wptr;

    void Attach(T* object) { Share(object, object != nullptr ? object->GetRefCounter() : nullptr); }
    void Share(T* object, RefCounter* refs)
    {
        object_ = object;
        refs_ = refs;
        if (refs_ != nullptr) {
            refs_->holders.fetch_add(1, std::memory_order_relaxed);
            refs_->weak.fetch_add(1, std::memory_order_relaxed);
        }
    }
    void Detach()
    {
        if (refs_ != nullptr) {
            refs_->weak.fetch_sub(1, std::memory_order_relaxed);
            refs_->ReleaseHolder();
        }
        object_ = nullptr;
        refs_ = nullptr;
    }
    void Swap(wptr& other)
    {
        std::swap(object_, other.object_);
        std::swap(refs_, other.refs_);
    }

    T* object_ = nullptr;
    RefCounter* refs_ = nullptr;
};

} // namespace OHOS

#endif // UTILS_REFBASE_H
