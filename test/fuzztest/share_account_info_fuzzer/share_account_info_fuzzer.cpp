#include "fuzz_harness.h"
#include "share_account_info.h"

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size)
{
    return OHOS::Zelkon::FuzzRecord<OHOS::Zelkon::ShareAccountInfo>(data, size);
}
