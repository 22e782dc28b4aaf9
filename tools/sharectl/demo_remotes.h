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
 * The application's side of the exchange: its listeners and callbacks (local objects whose remote objects travel
 * in the requests), typed proxies for the sender and receiver objects that the services hand back, and a counter
 * of the share service's death notices.
 */
#ifndef DEMO_REMOTES_H
#define DEMO_REMOTES_H

#include <atomic>
#include <cstdint>
#include <tuple>

#include "iremote_proxy.h"
#include "iremote_stub.h"
#include "share_client.h"
#include "share_manager_client.h"

namespace OHOS {
namespace Zelkon {

template <typename Interface>
class DemoRemote : public IRemoteStub<Interface> {
};

// One listener or callback per interface that the operations of both services take; the same object for every
// operation of one run, so that an unregistration names what the registration registered.
template <typename... Interfaces>
class StubSet {
public:
    template <typename Interface>
    const sptr<DemoRemote<Interface>>& Stub() const
    {
        return std::get<sptr<DemoRemote<Interface>>>(stubs_);
    }

private:
    std::tuple<sptr<DemoRemote<Interfaces>>...> stubs_{new DemoRemote<Interfaces>()...};
};

using LocalRemotes = StubSet<IPublishListener, ISubscribeListener, ZelkonReceiveListener, ICommonReceiveListener,
                             ITransmitCallback, ZelkonWidgetServiceCallback, ISenderActionCallback, ZelkonApiCallback>;

// Asks the object behind a sender or receiver for its handle number; -1 when it does not answer.
int32_t QueryHandle(const sptr<IRemoteObject>& object, const std::u16string& token);

class DemoSenderProxy : public IRemoteProxy<ZelkonSender> {
public:
    explicit DemoSenderProxy(const sptr<IRemoteObject>& remote) : IRemoteProxy<ZelkonSender>(remote) {}
    int32_t TransferId() { return QueryHandle(Remote(), GetDescriptor()); }
};

class DemoReceiverProxy : public IRemoteProxy<ZelkonReceiver> {
public:
    explicit DemoReceiverProxy(const sptr<IRemoteObject>& remote) : IRemoteProxy<ZelkonReceiver>(remote) {}
    int32_t ReceiverId() { return QueryHandle(Remote(), GetDescriptor()); }
};

// Counts the share service's death notices.
class DeathCounter : public ShareSaDiedCallback {
public:
    void OnShareSaDied() override { ++deaths_; }
    int Deaths() const { return deaths_; }

private:
    std::atomic<int> deaths_{0};
};

} // namespace Zelkon
} // namespace OHOS

#endif // DEMO_REMOTES_H
