#include "reply_stub.h"

#include "ipc_types.h"

namespace OHOS {
namespace Zelkon {

ReplyStub::ReplyStub(const std::u16string& descriptor) :
    IPCObjectStub(descriptor), leadingObject_(new IPCObjectStub(u"fuzz.reply.object"))
{
}

void ReplyStub::AnswerWith(const uint8_t* data, size_t size, bool leadingObject)
{
    data_ = data;
    size_ = size;
    withObject_ = leadingObject;
}

int ReplyStub::OnRemoteRequest(uint32_t code, MessageParcel& data, MessageParcel& reply, MessageOption& option)
{
    (void)code;
    (void)data;
    (void)option;
    if (withObject_ && !reply.WriteRemoteObject(leadingObject_)) {
        return ERR_INVALID_DATA;
    }
    // An empty reply is a legal answer; the parcel refuses a zero-length buffer, so it is simply not written.
    if (size_ > 0 && !reply.WriteBuffer(data_, size_)) {
        return ERR_INVALID_DATA;
    }
    return ERR_NONE;
}

} // namespace Zelkon
} // namespace OHOS
