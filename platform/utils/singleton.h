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
 * Process singletons. A DelayedRefSingleton is created on first use under a mutex (double-checked) and never
 * destroyed; a Singleton is a static object, made as the program loads.
 */
#ifndef UTILS_BASE_SINGLETON_H
#define UTILS_BASE_SINGLETON_H

#include <atomic>
#include <memory>
#include <mutex>

#include "nocopyable.h"

namespace OHOS {

#define DECLARE_DELAYED_SINGLETON(MyClass)                                                                             \
public:                                                                                                                \
    ~MyClass();                                                                                                        \
                                                                                                                       \
private:                                                                                                               \
    friend DelayedSingleton<MyClass>;                                                                                  \
    MyClass();

#define DECLARE_DELAYED_REF_SINGLETON(MyClass)                                                                         \
private:                                                                                                               \
    friend DelayedRefSingleton<MyClass>;                                                                               \
    ~MyClass();                                                                                                        \
    MyClass();

#define DECLARE_SINGLETON(MyClass)                                                                                     \
private:                                                                                                               \
    friend Singleton<MyClass>;                                                                                         \
    MyClass& operator=(const MyClass&) = delete;                                                                       \
    MyClass(const MyClass&) = delete;                                                                                  \
    MyClass();                                                                                                         \
    ~MyClass();

// The instance pointer is atomic on the host: the platform tests it outside its lock without an atomic, a data
// race on the first concurrent GetInstance.
template <typename T>
class DelayedRefSingleton : public NoCopyable {
public:
    static T& GetInstance()
    {
        T* instance = instance_.load(std::memory_order_acquire);
        if (instance == nullptr) {
            std::lock_guard<std::mutex> lock(mutex_);
            instance = instance_.load(std::memory_order_relaxed);
            if (instance == nullptr) {
                instance = new T();
                instance_.store(instance, std::memory_order_release);
            }
        }
        return *instance;
    }

private:
    static inline std::atomic<T*> instance_{nullptr};
    static inline std::mutex mutex_;
};

template <typename T>
class DelayedSingleton : public NoCopyable {
public:
    static std::shared_ptr<T> GetInstance()
    {
        std::lock_guard<std::mutex> lock(mutex_);
        if (instance_ == nullptr) {
            instance_ = std::shared_ptr<T>(new T());
        }
        return instance_;
    }
    static void DestroyInstance()
    {
        std::lock_guard<std::mutex> lock(mutex_);
        instance_.reset();
    }

private:
    static inline std::shared_ptr<T> instance_;
    static inline std::mutex mutex_;
};

template <typename T>
class Singleton : public NoCopyable {
public:
    static T& GetInstance() { return instance_; }

private:
    static T instance_;
};

template <typename T>
T Singleton<T>::instance_;

} // namespace OHOS

#endif // UTILS_BASE_SINGLETON_H
