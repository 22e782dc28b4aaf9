#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <string>

#include "reply_stub.h"
#include "share_manager_srv_proxy.h"

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size)
{
    using namespace OHOS;
    using namespace OHOS::Zelkon;
    static const sptr<ReplyStub> stub(new ReplyStub(u"ohos.Zelkon.IWidgetService"));
    static const sptr<ShareManagerSrvProxy> proxy = ProxyAnsweredBy<ShareManagerSrvProxy>(stub);
    stub->AnswerWith(data, size, false);
    // The text is copied out of the reply's data block: it is shorter than the reply and holds no zero byte.
    const std::string preview = proxy->GetPreviewData();
    if ((!preview.empty() && preview.size() >= size) || preview.find('\0') != std::string::npos) {
        abort();
    }
    return 0;
}
