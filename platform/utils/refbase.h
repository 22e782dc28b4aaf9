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
 * A RefCounter holds the counts and outlives its object while weak references remain. Every strong reference is
 * also a weak one; each wptr made from an object or an sptr adds a WeakRefCounter (shared by the wptrs copied from
 * it) that counts once. An object is deleted when its last strong reference goes; one that was only ever held
 * weakly, or whose lifetime is extended, when its last weak reference goes.
 */
#ifndef UTILS_BASE_REFBASE_H
#define UTILS_BASE_REFBASE_H

#include <atomic>
#include <utility>

namespace OHOS {

#define INITIAL_PRIMARY_VALUE (1 << 28)

class RefBase;

class RefCounter {
public:
    friend class RefBase;

    explicit RefCounter(RefBase* object);
    RefCounter(const RefCounter&) = delete;
    RefCounter& operator=(const RefCounter&) = delete;
    virtual ~RefCounter() = default;

    // Holders of the counter: the object until it lets go, and each WeakRefCounter.
    int GetRefCount();
    void IncRefCount();
    void DecRefCount();

    // The object, until its destructor runs.
    bool IsRefPtrValid();
    void RemoveCallback();

    // Each returns the count before the change.
    int IncStrongRefCount(const void* objectId);
    int DecStrongRefCount(const void* objectId);
    int GetStrongRefCount();
    int IncWeakRefCount(const void* objectId);
    int DecWeakRefCount(const void* objectId);
    int GetWeakRefCount();
    // A strong reference unless the object is gone for good; outCount is INITIAL_PRIMARY_VALUE when it is the
    // first.
    bool AttemptIncStrongRef(const void* objectId, int& outCount);

    bool IsLifeTimeExtended();
    void ExtendObjectLifetime();

private:
    // The object's deletion, when its counts say so.
    void DeleteObject();

    std::atomic<int> atomicStrong_{INITIAL_PRIMARY_VALUE};
    std::atomic<int> atomicWeak_{0};
    std::atomic<int> atomicRefCount_{0};
    std::atomic<bool> extendedLifetime_{false};
    std::atomic<RefBase*> object_;
};

// What the wptrs copied from one another share: one weak reference to the object, for as long as one of them lives.
class WeakRefCounter {
public:
    WeakRefCounter(RefCounter* counter, void* cookie);
    WeakRefCounter(const WeakRefCounter&) = delete;
    WeakRefCounter& operator=(const WeakRefCounter&) = delete;
    virtual ~WeakRefCounter();

    // The object it was made for, or null once the object is destroyed.
    void* GetRefPtr();
    void IncWeakRefCount(const void* objectId);
    // The last one deletes this WeakRefCounter.
    void DecWeakRefCount(const void* objectId);
    int GetWeakRefCount() const;
    bool AttemptIncStrongRef(const void* objectId);

private:
    std::atomic<int> atomicWeak_{0};
    RefCounter* refCounter_;
    void* cookie_;
};

class RefBase {
public:
    RefBase();
    // A copy is a different object: it gets counts of its own. An assignment or a move leaves the counts alone.
    RefBase(const RefBase& other);
    RefBase& operator=(const RefBase& other);
    RefBase(RefBase&& other) noexcept;
    RefBase& operator=(RefBase&& other) noexcept;
    virtual ~RefBase();

    // Deletes the object when its counts say so.
    virtual void RefPtrCallback();

    // The object then lives until its last weak reference, and a wptr promotes after the last strong one went.
    void ExtendObjectLifetime();
    bool IsExtendLifeTimeSet();

    void IncStrongRef(const void* objectId);
    void DecStrongRef(const void* objectId);
    int GetSptrRefCount();
    WeakRefCounter* CreateWeakRef(void* cookie);
    // Created on first need: a record that only ever lives in a container or on the stack never allocates one.
    RefCounter* GetRefCounter() const;
    void IncWeakRef(const void* objectId);
    void DecWeakRef(const void* objectId);
    // The weak references, strong ones included.
    int GetWptrRefCount();
    bool AttemptIncStrongRef(const void* objectId);

    virtual void OnFirstStrongRef(const void* objectId);
    virtual void OnLastStrongRef(const void* objectId);
    // Never called, as on the platform.
    virtual void OnLastWeakRef(const void* objectId);
    virtual bool OnAttemptPromoted(const void* objectId);

private:
    mutable std::atomic<RefCounter*> refs_{nullptr};
};

template <typename T>
class wptr;

template <typename T>
class sptr {
public:
    sptr() = default;
    sptr(T* other) : refs_(other)
    {
        if (refs_ != nullptr) {
            refs_->IncStrongRef(this);
        }
    }
    sptr(const sptr& other) : sptr(other.refs_) {}
    sptr(sptr&& other) noexcept : refs_(other.refs_) { other.refs_ = nullptr; }
    // Only copies: std::move of a derived sptr into a base one leaves the source holding its object.
    template <typename O>
    sptr(const sptr<O>& other) : sptr(other.GetRefPtr())
    {
    }
    ~sptr()
    {
        if (refs_ != nullptr) {
            refs_->DecStrongRef(this);
        }
    }

    sptr& operator=(const sptr& other) { return *this = other.refs_; }
    sptr& operator=(sptr&& other) noexcept
    {
        T* taken = std::exchange(other.refs_, nullptr);
        if (refs_ != nullptr) {
            refs_->DecStrongRef(this);
        }
        refs_ = taken;
        return *this;
    }
    sptr& operator=(T* other)
    {
        if (other != nullptr) {
            other->IncStrongRef(this);
        }
        if (refs_ != nullptr) {
            refs_->DecStrongRef(this);
        }
        refs_ = other;
        return *this;
    }
    template <typename O>
    sptr& operator=(const sptr<O>& other)
    {
        T* object = other.GetRefPtr();
        return *this = object;
    }
    sptr& operator=(const wptr<T>& other)
    {
        *this = other.promote();
        return *this;
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

    bool operator==(const T* other) const { return refs_ == other; }
    bool operator!=(const T* other) const { return refs_ != other; }
    bool operator==(const sptr& other) const { return refs_ == other.refs_; }
    bool operator!=(const sptr& other) const { return refs_ != other.refs_; }
    bool operator==(const wptr<T>& other) const { return refs_ == other.GetRefPtr(); }
    bool operator!=(const wptr<T>& other) const { return refs_ != other.GetRefPtr(); }

    void clear() { *this = nullptr; }
    // Replaces the pointer without touching any count.
    void ForceSetRefPtr(T* other) { refs_ = other; }

private:
    friend class wptr<T>;
    struct AdoptTag {};
    sptr(T* other, AdoptTag) : refs_(other) {}

    T* refs_ = nullptr;
};

// No move: std::move of a wptr copies it.
template <typename T>
class wptr {
public:
    wptr() = default;
    wptr(T* other) { Attach(other); }
    wptr(const sptr<T>& other) { Attach(other.GetRefPtr()); }
    template <typename O>
    wptr(const sptr<O>& other)
    {
        Attach(other.GetRefPtr());
    }
    wptr(const wptr& other) { Share(other.refs_, other.object_); }
    template <typename O>
    wptr(const wptr<O>& other)
    {
        Share(other.refs_, other.object_);
    }
    ~wptr() { Detach(); }

    wptr& operator=(const wptr& other)
    {
        wptr copy(other);
        Swap(copy);
        return *this;
    }
    template <typename O>
    wptr& operator=(const wptr<O>& other)
    {
        wptr copy(other);
        Swap(copy);
        return *this;
    }
    wptr& operator=(T* other)
    {
        wptr copy(other);
        Swap(copy);
        return *this;
    }
    wptr& operator=(const sptr<T>& other) { return *this = other.GetRefPtr(); }
    template <typename O>
    wptr& operator=(const sptr<O>& other)
    {
        T* object = other.GetRefPtr();
        return *this = object;
    }

    // A strong reference, or null once the object is gone: its last strong reference went (unless its lifetime is
    // extended) or it was destroyed.
    const sptr<T> promote() const
    {
        if (GetRefPtr() == nullptr || !refs_->AttemptIncStrongRef(this)) {
            return nullptr;
        }
        return sptr<T>(object_, typename sptr<T>::AdoptTag{});
    }
    bool AttemptIncStrongRef(const void* objectId) const
    {
        return refs_ != nullptr && refs_->AttemptIncStrongRef(objectId);
    }
    // The wptrs that share this one's weak reference.
    int GetWeakRefCount() const { return refs_ != nullptr ? refs_->GetWeakRefCount() : 0; }

    // The object, or null once it was destroyed.
    T* GetRefPtr() const { return (refs_ != nullptr && refs_->GetRefPtr() != nullptr) ? object_ : nullptr; }
    T* operator->() const { return GetRefPtr(); }
    T& operator*() const { return *GetRefPtr(); }

    bool operator==(const T* other) const { return GetRefPtr() == other; }
    bool operator!=(const T* other) const { return GetRefPtr() != other; }
    bool operator==(const wptr& other) const { return GetRefPtr() == other.GetRefPtr(); }
    bool operator!=(const wptr& other) const { return GetRefPtr() != other.GetRefPtr(); }
    bool operator==(const sptr<T>& other) const { return GetRefPtr() == other.GetRefPtr(); }
    bool operator!=(const sptr<T>& other) const { return GetRefPtr() != other.GetRefPtr(); }

private:
    template <typename O>
    friend class wptr;

    void Attach(T* object)
    {
        WeakRefCounter* refs = object != nullptr ? object->CreateWeakRef(object) : nullptr;
        Share(refs, object);
    }
    void Share(WeakRefCounter* refs, T* object)
    {
        refs_ = refs;
        object_ = refs != nullptr ? object : nullptr;
        if (refs_ != nullptr) {
            refs_->IncWeakRefCount(this);
        }
    }
    void Detach()
    {
        if (refs_ != nullptr) {
            refs_->DecWeakRefCount(this);
        }
        refs_ = nullptr;
        object_ = nullptr;
    }
    void Swap(wptr& other)
    {
        std::swap(refs_, other.refs_);
        std::swap(object_, other.object_);
    }

    WeakRefCounter* refs_ = nullptr;
    // The object as a T: the counter's cookie is the object as the type the first wptr was made for.
    T* object_ = nullptr;
};

} // namespace OHOS

#endif // UTILS_BASE_REFBASE_H
