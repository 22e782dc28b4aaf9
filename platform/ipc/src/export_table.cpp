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

#include "export_table.h"

#include <string>
#include <vector>

namespace OHOS {

ExportTable& ExportTable::OfProcess()
{
    // Never destroyed: peers may release objects while statics are torn down.
    static ExportTable* table = new ExportTable();
    return *table;
}

uint64_t ExportTable::Export(const sptr<IRemoteObject>& object, uint64_t session)
{
    std::lock_guard<std::mutex> lock(mutex_);
    auto [known, added] = handles_.emplace(object.GetRefPtr(), nextHandle_);
    if (added) {
        entries_[nextHandle_++].object = object;
    }
    ++entries_[known->second].references[session];
    return known->second;
}

ExportTable::Entries::iterator ExportTable::Usable(uint64_t handle, uint64_t session)
{
    auto it = entries_.find(handle);
    if (it == entries_.end() || it->second.served || it->second.references.count(session) != 0) {
        return it;
    }
    return entries_.end();
}

sptr<IRemoteObject> ExportTable::Find(uint64_t handle, uint64_t session)
{
    std::lock_guard<std::mutex> lock(mutex_);
    auto it = Usable(handle, session);
    return it != entries_.end() ? it->second.object : nullptr;
}

sptr<IRemoteObject> ExportTable::Acquire(uint64_t handle, uint64_t session, const std::string& address, bool& forged)
{
    std::lock_guard<std::mutex> lock(mutex_);
    auto it = Usable(handle, session);
    if (it == entries_.end()) {
        it = entries_.find(handle);
        // A handle let go since it was granted is gone; one never handed out, or not to this peer, is forged.
        forged = handle >= nextHandle_ || (it != entries_.end() && it->second.grants.count(address) == 0);
        if (it == entries_.end() || forged) {
            return nullptr;
        }
    }
    ++it->second.references[session];
    return it->second.object;
}

bool ExportTable::Grant(uint64_t handle, uint64_t session, const std::string& address)
{
    std::lock_guard<std::mutex> lock(mutex_);
    auto it = entries_.find(handle);
    if (it == entries_.end() || it->second.references.count(session) == 0) {
        return false;
    }
    it->second.grants.insert(address);
    return true;
}

bool ExportTable::Release(uint64_t handle, uint64_t session)
{
    std::vector<sptr<IRemoteObject>> dropped;
    std::lock_guard<std::mutex> lock(mutex_);
    auto it = entries_.find(handle);
    if (it == entries_.end()) {
        return false;
    }
    auto held = it->second.references.find(session);
    if (held == it->second.references.end()) {
        return false;
    }
    if (--held->second == 0) {
        it->second.references.erase(held);
        ForgetIfUnheld(it, dropped);
    }
    return true;
}

void ExportTable::ReleaseAll(uint64_t session, const std::string& address)
{
    std::vector<sptr<IRemoteObject>> dropped;
    std::lock_guard<std::mutex> lock(mutex_);
    for (auto it = entries_.begin(); it != entries_.end();) {
        auto next = std::next(it);
        it->second.grants.erase(address);
        if (it->second.references.erase(session) != 0) {
            ForgetIfUnheld(it, dropped);
        }
        it = next;
    }
}

bool ExportTable::ServeContext(const sptr<IRemoteObject>& object)
{
    std::lock_guard<std::mutex> lock(mutex_);
    auto it = entries_.find(CONTEXT_HANDLE);
    if (it != entries_.end() && it->second.object != object) {
        return false;
    }
    Entry& entry = entries_[CONTEXT_HANDLE];
    entry.object = object;
    entry.served = true;
    handles_[object.GetRefPtr()] = CONTEXT_HANDLE;
    return true;
}

void ExportTable::StopServingContext()
{
    std::vector<sptr<IRemoteObject>> dropped;
    std::lock_guard<std::mutex> lock(mutex_);
    auto it = entries_.find(CONTEXT_HANDLE);
    if (it != entries_.end()) {
        it->second.served = false;
        ForgetIfUnheld(it, dropped);
    }
}

void ExportTable::ForgetIfUnheld(Entries::iterator it, std::vector<sptr<IRemoteObject>>& dropped)
{
    if (!it->second.references.empty() || it->second.served) {
        return;
    }
    // The object may have been exported again under the context handle since.
    auto known = handles_.find(it->second.object.GetRefPtr());
    if (known != handles_.end() && known->second == it->first) {
        handles_.erase(known);
    }
    dropped.push_back(std::move(it->second.object));
    entries_.erase(it);
}

} // namespace OHOS
