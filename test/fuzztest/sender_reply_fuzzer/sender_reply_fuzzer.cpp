#include <cstddef>
#include <cstdint>
#include <functional>
#include <vector>

#include "fuzz_listener.h"
#include "reply_stub.h"
#include "share_srv_proxy.h"

namespace {
using namespace OHOS;
using namespace OHOS::Zelkon;

using Operation = std::function<sptr<ZelkonSender>(ShareSrvProxy&)>;

// The four transfer requests, whose reply is the sender object of the transfer.
const std::vector<Operation>& Operations()
{
    static const sptr<ITransmitCallback> callback = MakeFuzzListener<ITransmitCallback>();
    static const TransmitParam param{"device", 30, callback, TransmitEventType{}};
    static SendBean sendBean;
    static const DataBean dataBean;
    static const BytesInfo bytesInfo;
    static CommonShareObject shareObject;
    static const std::vector<Operation> operations = {
        [](ShareSrvProxy& p) { return p.SendFile(param, sendBean, "com.example.share"); },
        [](ShareSrvProxy& p) { return p.SendFile(param, dataBean, "com.example.share"); },
        [](ShareSrvProxy& p) { return p.SendBytes(param, bytesInfo); },
        [](ShareSrvProxy& p) { return p.CommonShareSend(shareObject, callback); },
    };
    return operations;
}
} // namespace

// No creator is registered for the sender's descriptor, so the result is null whatever the reply holds; the
// fuzzer watches for what the sanitizers see on the way.
extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size)
{
    static const sptr<ReplyStub> stub(new ReplyStub(u"ohos.Zelkon.ZelkonService"));
    static const sptr<ShareSrvProxy> proxy = ProxyAnsweredBy<ShareSrvProxy>(stub);
    const SelectedReply selected = SelectReply(data, size, Operations().size());
    stub->AnswerWith(selected.data, selected.size, selected.leadingObject);
    Operations()[selected.operation](*proxy);
    return 0;
}
