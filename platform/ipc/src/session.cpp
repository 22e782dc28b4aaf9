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

#include "session.h"

#include <algorithm>
#include <sys/socket.h>
#include <utility>

#include "export_table.h"
#include "frame_socket.h"
#include "ipc_log.h"
#include "ipc_threads.h"

namespace OHOS {
namespace {
std::atomic<uint64_t> g_nextSerial{1};
} // namespace

Session::Session(UniqueFd socket, std::string peerAddress, pid_t peerPid, uint64_t nonce) :
    peerAddress_(std::move(peerAddress)), peerPid_(peerPid), nonce_(nonce), serial_(g_nextSerial++),
    socket_(std::move(socket))
{
}

sptr<IRemoteObject> Session::FindImport(uint64_t handle)
{
    std::lock_guard<std::mutex> lock(mutex_);
    auto it = imports_.find(handle);
    return it != imports_.end() ? it->second.object.promote() : nullptr;
}

sptr<IRemoteObject> Session::ImportHandle(uint64_t handle, const std::function<ImportedProxy()>& make, bool& created)
{
    std::lock_guard<std::mutex> lock(mutex_);
    auto it = imports_.find(handle);
    if (it != imports_.end()) {
        // Null while the last reference of the previous object is going: that one gives its own reference back.
        sptr<IRemoteObject> existing = it->second.object.promote();
        if (existing != nullptr) {
            created = false;
            return existing;
        }
    }
    created = true;
    ImportedProxy made = make();
    if (IsAlive()) {
        imports_[handle] = Imported{made.object, made.notice};
    } else {
        made.notice->ProcessEnded();
    }
    return made.object;
}

void Session::Forget(uint64_t handle, const IRemoteObject* object)
{
    {
        std::lock_guard<std::mutex> lock(mutex_);
        auto it = imports_.find(handle);
        if (it != imports_.end() && it->second.object == object) {
            imports_.erase(it);
        }
    }
    SendRelease(handle);
}

void Session::SendRelease(uint64_t handle)
{
    IpcFrame release;
    release.kind = IpcFrame::Kind::RELEASE;
    release.handle = handle;
    const std::vector<uint8_t> bytes = release.Encode(nullptr, 0, 0);
    std::lock_guard<std::mutex> lock(sendMutex_);
    if (socket_ >= 0 && !FrameSocket::Send(socket_.Get(), bytes, {})) {
        IPC_HOST_LOGW("release of handle %{public}llu to pid %{public}d failed",
                      static_cast<unsigned long long>(handle), peerPid_);
    }
}

void Session::Close()
{
    std::lock_guard<std::mutex> lock(sendMutex_);
    if (socket_ >= 0) {
        shutdown(socket_.Get(), SHUT_RDWR);
    }
}

void Session::AddChannel(const std::shared_ptr<Channel>& channel)
{
    {
        std::lock_guard<std::mutex> lock(mutex_);
        if (IsAlive()) {
            // Channels of threads that ended are gone; their entries with them.
            channels_.erase(std::remove_if(channels_.begin(), channels_.end(),
                                           [](const std::weak_ptr<Channel>& held) { return held.expired(); }),
                            channels_.end());
            channels_.push_back(channel);
            return;
        }
    }
    channel->Retire();
}

void Session::ReadUntilEnd()
{
    int socket = -1;
    {
        std::lock_guard<std::mutex> lock(sendMutex_);
        socket = socket_.Get();
    }
    for (;;) {
        IpcFrame frame;
        if (FrameSocket::ReceiveRequest(socket, frame) != FrameSocket::Result::OK) {
            break;
        }
        if (frame.kind != IpcFrame::Kind::RELEASE || !ExportTable::OfProcess().Release(frame.handle, serial_)) {
            IPC_HOST_LOGE("refused a session frame of kind %{public}u on handle %{public}llu from pid %{public}d",
                          static_cast<unsigned>(frame.kind), static_cast<unsigned long long>(frame.handle), peerPid_);
            break;
        }
    }
    End();
}

void Session::End()
{
    // The live imported proxies; the references taken here are let go after the lock, since a last one leads back
    // to Forget. An object whose last reference is going is not registered: nobody is left to tell.
    std::vector<std::pair<sptr<IRemoteObject>, DeathNotice*>> proxies;
    std::vector<std::weak_ptr<Channel>> channels;
    {
        std::lock_guard<std::mutex> lock(sendMutex_);
        socket_ = UniqueFd();
    }
    {
        std::lock_guard<std::mutex> lock(mutex_);
        alive_.store(false, std::memory_order_release);
        for (const auto& [handle, imported] : imports_) {
            if (sptr<IRemoteObject> proxy = imported.object.promote()) {
                proxies.emplace_back(std::move(proxy), imported.notice);
            }
        }
        imports_.clear();
        channels.swap(channels_);
    }
    // Each registered proxy, held while its notice runs.
    std::vector<std::pair<sptr<IRemoteObject>, DeathNotice*>> notices;
    for (const auto& [proxy, notice] : proxies) {
        if (sptr<IRemoteObject> registered = notice->ProcessEnded()) {
            notices.emplace_back(std::move(registered), notice);
        }
    }
    proxies.clear();
    ExportTable::OfProcess().ReleaseAll(serial_, peerAddress_);
    for (const std::weak_ptr<Channel>& held : channels) {
        if (std::shared_ptr<Channel> channel = held.lock()) {
            channel->Retire();
        }
    }
    std::lock_guard<std::mutex> lock(mutex_);
    ended_ = true;
    noticesPending_ = !notices.empty();
    if (noticesPending_) {
        IpcThreads::Post([self = shared_from_this(), notices = std::move(notices)] {
            for (const auto& [proxy, notice] : notices) {
                notice->Deliver();
            }
            self->NoticesDone();
        });
    }
    changed_.notify_all();
}

bool Session::ServingStarted()
{
    std::lock_guard<std::mutex> lock(mutex_);
    if (!IsAlive()) {
        return false;
    }
    ++channelsServed_;
    return true;
}

void Session::ServingEnded()
{
    std::lock_guard<std::mutex> lock(mutex_);
    --channelsServed_;
    changed_.notify_all();
}

void Session::NoticesDone()
{
    std::lock_guard<std::mutex> lock(mutex_);
    noticesPending_ = false;
    changed_.notify_all();
}

bool Session::WaitGone(std::chrono::steady_clock::time_point deadline)
{
    std::unique_lock<std::mutex> lock(mutex_);
    return changed_.wait_until(lock, deadline, [this] { return Gone(); });
}

bool Session::IsGone()
{
    std::lock_guard<std::mutex> lock(mutex_);
    return Gone();
}

} // namespace OHOS
