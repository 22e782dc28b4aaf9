#include <cstring>
#include <vector>

#include "fuzz_harness.h"
#include "share_manager_srv_proxy.h"

// A list is all or nothing: exactly the count that the reply announced, at most 1000, each record stable.
extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size)
{
    using namespace OHOS::Zelkon;
    const auto reply = AnswerWith<ShareManagerSrvProxy>(data, size, 2);
    const std::vector<ShareDeviceInfo> devices =
        reply.operation == 0 ? reply.proxy.GetAllUserList() : reply.proxy.GetSendingUserList();
    if (devices.empty()) {
        return 0;
    }
    int32_t count = 0;
    memcpy(&count, reply.data, sizeof(count));
    if (count > 1000 || devices.size() != static_cast<size_t>(count)) {
        abort();
    }
    for (const ShareDeviceInfo& device : devices) {
        CheckRewriteStable(device);
    }
    return 0;
}
