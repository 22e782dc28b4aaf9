/*
 * The application's side of the exchange: its listeners and callbacks (local objects whose remote objects travel
 * in the requests), typed proxies for the sender and receiver objects that the services hand back, and a waiter
 * for the share service's death notice.
 */
#ifndef DEMO_REMOTES_H
#define DEMO_REMOTES_H

#include <chrono>
#include <condition_variable>
#include <cstdint>
#include <mutex>

#include "iremote_proxy.h"
#include "iremote_stub.h"
#include "share_client.h"
#include "share_manager_client.h"

namespace OHOS {
namespace Zelkon {

template <typename Interface>
class DemoRemote : public IRemoteStub<Interface> {
};

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

class DiedWaiter : public ShareSaDiedCallback {
public:
    void OnShareSaDied() override;
    // True once `count` death notices have arrived.
    bool WaitForDeaths(int count, std::chrono::milliseconds timeout);
    int Deaths();

private:
    std::mutex mutex_;
    std::condition_variable died_;
    int deaths_ = 0;
};

} // namespace Zelkon
} // namespace OHOS

#endif // DEMO_REMOTES_H
