/*
 * Base of the stub of an interface: a local object that is the interface itself.
 */
#ifndef OHOS_IPC_IREMOTE_STUB_H
#define OHOS_IPC_IREMOTE_STUB_H

#include "ipc_object_stub.h"
#include "iremote_broker.h"

namespace OHOS {

template <typename INTERFACE>
class IRemoteStub : public IPCObjectStub, public INTERFACE {
public:
    explicit IRemoteStub(bool serialInvokeFlag = false) : IPCObjectStub(INTERFACE::GetDescriptor(), serialInvokeFlag) {}
    ~IRemoteStub() override = default;

    sptr<IRemoteObject> AsObject() override { return this; }
    sptr<IRemoteBroker> AsInterface() override { return this; }
};

} // namespace OHOS

#endif // OHOS_IPC_IREMOTE_STUB_H
