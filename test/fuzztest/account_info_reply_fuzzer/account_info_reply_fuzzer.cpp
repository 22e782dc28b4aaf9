#include <cstddef>
#include <cstdint>
#include <cstdlib>

#include "record_fuzz.h"
#include "reply_stub.h"
#include "share_manager_srv_proxy.h"

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size)
{
    using namespace OHOS;
    using namespace OHOS::Zelkon;
    static const sptr<ReplyStub> stub(new ReplyStub(u"ohos.Zelkon.IWidgetService"));
    static const sptr<ShareManagerSrvProxy> proxy = ProxyAnsweredBy<ShareManagerSrvProxy>(stub);
    stub->AnswerWith(data, size, false);
    // A partly read record is a legal result; whatever was read must still be a record that can be sent on.
    CheckRewriteStable(proxy->GetAccountInfo());
    return 0;
}
