#include <cstddef>
#include <cstdint>

#include "record_fuzz.h"
#include "share_account_info.h"

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size)
{
    OHOS::Parcel parcel;
    OHOS::Zelkon::FillParcel(parcel, data, size);
    OHOS::Zelkon::ShareAccountInfo record;
    if (record.ReadFromParcel(parcel)) {
        OHOS::Zelkon::CheckRewriteStable(record);
    }
    return 0;
}
