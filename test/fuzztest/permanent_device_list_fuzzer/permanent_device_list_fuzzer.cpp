#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <cstring>

#include "reply_stub.h"
#include "share_srv_proxy.h"

namespace {
// A record is at least its id, two empty strings, its type and its time stamp.
constexpr size_t SMALLEST_RECORD = 4 + 8 + 4 + 8 + 8;
constexpr size_t MAX_RECORDS = 1000;
} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size)
{
    using namespace OHOS;
    using namespace OHOS::Zelkon;
    static const sptr<ReplyStub> stub(new ReplyStub(u"ohos.Zelkon.ZelkonService"));
    static const sptr<ShareSrvProxy> proxy = ProxyAnsweredBy<ShareSrvProxy>(stub);
    stub->AnswerWith(data, size, false);
    const std::vector<PermanentDeviceInfo> devices = proxy->GetPermanentDeviceList();
    if (devices.empty()) {
        return 0;
    }
    // A partial list is allowed, but never more records than the count announced or the reply could hold.
    // The reply holds the input padded to whole words.
    int32_t count = 0;
    memcpy(&count, data, sizeof(count));
    size_t replySize = (size + 3) & ~static_cast<size_t>(3);
    if (devices.size() > MAX_RECORDS || devices.size() > static_cast<size_t>(count) ||
        devices.size() * SMALLEST_RECORD > replySize - sizeof(count)) {
        abort();
    }
    return 0;
}
