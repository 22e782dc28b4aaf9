#include "fuzz_harness.h"
#include "share_manager_srv_proxy.h"

// A partly read record is a legal result; whatever was read must still be a record that can be sent on.
extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size)
{
    using namespace OHOS::Zelkon;
    CheckRewriteStable(AnswerWith<ShareManagerSrvProxy>(data, size, 1).proxy.GetAccountInfo());
    return 0;
}
