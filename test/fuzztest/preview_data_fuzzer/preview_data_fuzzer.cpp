#include <string>

#include "fuzz_harness.h"
#include "share_manager_srv_proxy.h"

// The text is copied out of the reply's data block: it is shorter than the reply and holds no zero byte.
extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size)
{
    using namespace OHOS::Zelkon;
    const auto reply = AnswerWith<ShareManagerSrvProxy>(data, size, 1);
    const std::string preview = reply.proxy.GetPreviewData();
    if ((!preview.empty() && preview.size() >= reply.size) || preview.find('\0') != std::string::npos) {
        abort();
    }
    return 0;
}
