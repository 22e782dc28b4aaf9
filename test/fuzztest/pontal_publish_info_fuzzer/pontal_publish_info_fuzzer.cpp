#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <string>

#include "reply_stub.h"
#include "share_srv_proxy.h"

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size)
{
    using namespace OHOS;
    using namespace OHOS::Zelkon;
    static const sptr<ReplyStub> stub(new ReplyStub(u"ohos.Zelkon.ZelkonService"));
    static const sptr<ShareSrvProxy> proxy = ProxyAnsweredBy<ShareSrvProxy>(stub);
    stub->AnswerWith(data, size, false);
    std::string info = "replaced once the service answered";
    const int32_t result = proxy->GetPontalPublishInfo(info);
    // The text comes out of the reply, so it cannot be longer than the reply.
    if ((result != 0 && result != 1) || info.size() > size) {
        abort();
    }
    return 0;
}
