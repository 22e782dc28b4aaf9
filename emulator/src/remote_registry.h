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
 * The caller objects that an emulated service keeps per kind (listeners, callbacks). Keyed by the object, which
 * stays the same while the caller's listener lives. Each operation is atomic under the registry's own lock, which a
 * state may take while it holds its own (never the other way round).
 */
#ifndef REMOTE_REGISTRY_H
#define REMOTE_REGISTRY_H

#include <cstddef>
#include <map>
#include <mutex>

#include "iremote_object.h"

namespace OHOS {
namespace Zelkon {

template <typename Kind>
class RemoteRegistry {
public:
    // False when the object was already registered for the kind.
    bool Add(Kind kind, const sptr<IRemoteObject>& object)
    {
        std::lock_guard<std::mutex> lock(mutex_);
        return objects_[kind].emplace(object.GetRefPtr(), object).second;
    }
    // False when the object was not registered for the kind.
    bool Remove(Kind kind, const sptr<IRemoteObject>& object)
    {
        std::lock_guard<std::mutex> lock(mutex_);
        return objects_[kind].erase(object.GetRefPtr()) > 0;
    }
    bool Contains(Kind kind, const sptr<IRemoteObject>& object)
    {
        std::lock_guard<std::mutex> lock(mutex_);
        return objects_[kind].count(object.GetRefPtr()) > 0;
    }
    // False when there was nothing to clear.
    bool Clear(Kind kind)
    {
        std::lock_guard<std::mutex> lock(mutex_);
        auto& registered = objects_[kind];
        const bool hadAny = !registered.empty();
        registered.clear();
        return hadAny;
    }
    size_t Count(Kind kind)
    {
        std::lock_guard<std::mutex> lock(mutex_);
        return objects_[kind].size();
    }

private:
    std::mutex mutex_;
    std::map<Kind, std::map<IRemoteObject*, sptr<IRemoteObject>>> objects_;
};

} // namespace Zelkon
} // namespace OHOS

#endif // REMOTE_REGISTRY_H
