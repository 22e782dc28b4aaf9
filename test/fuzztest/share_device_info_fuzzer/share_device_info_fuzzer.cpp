#include "fuzz_harness.h"
#include "share_device_info.h"

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size)
{
    return OHOS::Zelkon::FuzzRecord<OHOS::Zelkon::ShareDeviceInfo>(data, size);
}
