/*
 * Base of the proxy of an interface: the interface's calls become transactions on the held remote object.
 */
#ifndef OHOS_IPC_IREMOTE_PROXY_H
#define OHOS_IPC_IREMOTE_PROXY_H

#include "iremote_broker.h"
#include "peer_holder.h"

namespace OHOS {

template <typename INTERFACE>
class IRemoteProxy : public PeerHolder, public INTERFACE {
public:
    explicit IRemoteProxy(const sptr<IRemoteObject>& object) : PeerHolder(object) {}
    ~IRemoteProxy() override = default;

protected:
    sptr<IRemoteObject> AsObject() override { return Remote(); }
};

} // namespace OHOS

#endif // OHOS_IPC_IREMOTE_PROXY_H
