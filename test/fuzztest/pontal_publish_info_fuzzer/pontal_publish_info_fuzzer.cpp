#include <string>

#include "fuzz_harness.h"
#include "share_srv_proxy.h"

// The result is a bool, and the text comes out of the reply, so it cannot be longer than the reply.
extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size)
{
    using namespace OHOS::Zelkon;
    const auto reply = AnswerWith<ShareSrvProxy>(data, size, 1);
    std::string info = "replaced once the service answered";
    const int32_t result = reply.proxy.GetPontalPublishInfo(info);
    if ((result != 0 && result != 1) || info.size() > reply.size) {
        abort();
    }
    return 0;
}
