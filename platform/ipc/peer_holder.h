/*
 * Holds the remote object a proxy talks to.
 */
#ifndef OHOS_IPC_PEER_HOLDER_H
#define OHOS_IPC_PEER_HOLDER_H

#include "iremote_object.h"
#include "refbase.h"

namespace OHOS {

class PeerHolder {
protected:
    PeerHolder(const sptr<IRemoteObject>& object) : remoteObject_(object) {}
    ~PeerHolder() = default;

    sptr<IRemoteObject> Remote() { return remoteObject_; }

private:
    const sptr<IRemoteObject> remoteObject_;
};

} // namespace OHOS

#endif // OHOS_IPC_PEER_HOLDER_H
