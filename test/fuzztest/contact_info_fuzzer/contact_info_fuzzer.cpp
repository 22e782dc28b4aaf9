#include <cstddef>
#include <cstdint>

#include "contact_info.h"
#include "record_fuzz.h"

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size)
{
    OHOS::Parcel parcel;
    OHOS::Zelkon::FillParcel(parcel, data, size);
    OHOS::Zelkon::ContactInfo record;
    if (record.ReadFromParcel(parcel)) {
        OHOS::Zelkon::CheckRewriteStable(record);
    }
    return 0;
}
