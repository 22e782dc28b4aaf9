#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <cstring>
#include <functional>
#include <vector>

#include "record_fuzz.h"
#include "reply_stub.h"
#include "share_manager_srv_proxy.h"

namespace {
using namespace OHOS;
using namespace OHOS::Zelkon;

using Operation = std::function<std::vector<ShareDeviceInfo>(ShareManagerSrvProxy&)>;

const std::vector<Operation> OPERATIONS = {
    [](ShareManagerSrvProxy& p) { return p.GetAllUserList(); },
    [](ShareManagerSrvProxy& p) { return p.GetSendingUserList(); },
};
} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size)
{
    static const sptr<ReplyStub> stub(new ReplyStub(u"ohos.Zelkon.IWidgetService"));
    static const sptr<ShareManagerSrvProxy> proxy = ProxyAnsweredBy<ShareManagerSrvProxy>(stub);
    const SelectedReply selected = SelectReply(data, size, OPERATIONS.size());
    stub->AnswerWith(selected.data, selected.size, selected.leadingObject);
    const std::vector<ShareDeviceInfo> devices = OPERATIONS[selected.operation](*proxy);
    if (devices.empty()) {
        return 0;
    }
    // A list is all or nothing: exactly the count that the reply announced, at most 1000.
    int32_t count = 0;
    memcpy(&count, selected.data, sizeof(count));
    if (count > 1000 || devices.size() != static_cast<size_t>(count)) {
        abort();
    }
    for (const ShareDeviceInfo& device : devices) {
        CheckRewriteStable(device);
    }
    return 0;
}
