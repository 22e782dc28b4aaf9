#include "contact_info.h"
#include "fuzz_harness.h"

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size)
{
    return OHOS::Zelkon::FuzzRecord<OHOS::Zelkon::ContactInfo>(data, size);
}
