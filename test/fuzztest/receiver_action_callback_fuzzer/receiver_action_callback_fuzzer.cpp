#include <cstddef>
#include <cstdint>

#include "reply_stub.h"
#include "share_manager_srv_proxy.h"

// The reply is a remote object or the bytes alone; no creator is registered for the receiver's descriptor, so the
// result is null either way and the fuzzer watches for what the sanitizers see on the way.
extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size)
{
    using namespace OHOS;
    using namespace OHOS::Zelkon;
    static const sptr<ReplyStub> stub(new ReplyStub(u"ohos.Zelkon.IWidgetService"));
    static const sptr<ShareManagerSrvProxy> proxy = ProxyAnsweredBy<ShareManagerSrvProxy>(stub);
    const SelectedReply selected = SelectReply(data, size, 1);
    stub->AnswerWith(selected.data, selected.size, selected.leadingObject);
    proxy->GetReceiverActionCallback();
    return 0;
}
