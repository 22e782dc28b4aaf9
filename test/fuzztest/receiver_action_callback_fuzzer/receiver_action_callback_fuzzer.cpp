#include "fuzz_harness.h"
#include "share_manager_srv_proxy.h"

// No creator is registered for the receiver's descriptor, so the result is null either way: the fuzzer watches for
// what the sanitizers see on the way.
extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size)
{
    using namespace OHOS::Zelkon;
    AnswerWith<ShareManagerSrvProxy>(data, size, 1).proxy.GetReceiverActionCallback();
    return 0;
}
