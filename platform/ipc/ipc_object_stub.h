/*
 * A local object that answers transactions itself, on the caller's thread.
 */
#ifndef OHOS_IPC_IPC_OBJECT_STUB_H
#define OHOS_IPC_IPC_OBJECT_STUB_H

#include <string>
#include <vector>

#include "iremote_object.h"

namespace OHOS {

class IPCObjectStub : public IRemoteObject {
public:
    explicit IPCObjectStub(std::u16string descriptor = {}, bool serialInvokeFlag = false);
    ~IPCObjectStub() override;

    bool IsProxyObject() const override { return false; }
    int32_t GetObjectRefCount() override;
    int SendRequest(uint32_t code, MessageParcel& data, MessageParcel& reply, MessageOption& option) override;
    virtual int OnRemoteRequest(uint32_t code, MessageParcel& data, MessageParcel& reply, MessageOption& option);
    // A local object never dies on its own: there is nothing to watch.
    bool AddDeathRecipient(const sptr<DeathRecipient>& recipient) override;
    bool RemoveDeathRecipient(const sptr<DeathRecipient>& recipient) override;
    int Dump(int fd, const std::vector<std::u16string>& args) override;
};

} // namespace OHOS

#endif // OHOS_IPC_IPC_OBJECT_STUB_H
