/*
 * A service that answers every request with bytes it is handed, as a broken or hostile service would: the reply
 * fuzzers feed their input through it to the real proxies, so that the library reads it exactly as it reads a
 * reply that crossed the process boundary.
 */
#ifndef REPLY_STUB_H
#define REPLY_STUB_H

#include <cstddef>
#include <cstdint>
#include <string>

#include "ipc_object_stub.h"
#include "message_option.h"
#include "message_parcel.h"
#include "refbase.h"

namespace OHOS {
namespace Zelkon {

class ReplyStub : public IPCObjectStub {
public:
    explicit ReplyStub(const std::u16string& descriptor);

    // The reply of the following requests: the bytes (not copied, they must outlive the requests), behind a remote
    // object when leadingObject is set, since fuzzed bytes alone can never carry one.
    void AnswerWith(const uint8_t* data, size_t size, bool leadingObject);

    int OnRemoteRequest(uint32_t code, MessageParcel& data, MessageParcel& reply, MessageOption& option) override;

private:
    sptr<IRemoteObject> leadingObject_;
    const uint8_t* data_ = nullptr;
    size_t size_ = 0;
    bool withObject_ = false;
};

// A proxy of type Proxy whose every request is answered by stub; made once per fuzzer, as the stub is.
template <typename Proxy>
sptr<Proxy> ProxyAnsweredBy(const sptr<ReplyStub>& stub)
{
    return sptr<Proxy>(new Proxy(stub));
}

// A fuzzer input whose first byte picks one of several operations and whether a remote object leads the reply;
// the rest is the reply.
struct SelectedReply {
    size_t operation;
    bool leadingObject;
    const uint8_t* data;
    size_t size;
};

SelectedReply SelectReply(const uint8_t* data, size_t size, size_t operationCount);

} // namespace Zelkon
} // namespace OHOS

#endif // REPLY_STUB_H
