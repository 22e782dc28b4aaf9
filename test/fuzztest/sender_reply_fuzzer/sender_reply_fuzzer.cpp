#include "fuzz_harness.h"
#include "share_srv_proxy.h"

// The four transfer requests, whose reply is the sender of the transfer. No creator is registered for the sender's
// descriptor, so the result is null whatever the reply holds: the fuzzer watches what the sanitizers see.
extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size)
{
    using namespace OHOS::Zelkon;
    static const TransmitParam param{"device", 30, FuzzListener<ITransmitCallback>(), TransmitEventType{}};
    static SendBean sendBean;
    static CommonShareObject shareObject;
    const auto reply = AnswerWith<ShareSrvProxy>(data, size, 4);
    switch (reply.operation) {
    case 0:
        reply.proxy.SendFile(param, sendBean, "com.example.share");
        break;
    case 1:
        reply.proxy.SendFile(param, DataBean(), "com.example.share");
        break;
    case 2:
        reply.proxy.SendBytes(param, BytesInfo());
        break;
    default:
        reply.proxy.CommonShareSend(shareObject, param.transCallback);
    }
    return 0;
}
