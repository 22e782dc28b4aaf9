#include "reply_stub.h"

#include "ipc_types.h"

namespace OHOS {
namespace Zelkon {

namespace {
constexpr uint8_t LEADING_OBJECT_BIT = 0x80;
} // namespace

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

SelectedReply SelectReply(const uint8_t* data, size_t size, size_t operationCount)
{
    if (size == 0) {
        return {0, false, data, 0};
    }
    const uint8_t selector = data[0];
    return {static_cast<size_t>(selector & ~LEADING_OBJECT_BIT) % operationCount, (selector & LEADING_OBJECT_BIT) != 0,
            data + 1, size - 1};
}

} // namespace Zelkon
} // namespace OHOS
