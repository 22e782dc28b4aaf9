#include "fuzz_harness.h"
#include "message_parcel.h"
#include "permanent_device_info.h"

// The record has no writer in the library, so only the reader runs; a record is at least its three numbers and
// two strings.
extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size)
{
    constexpr size_t smallestRecord = 4 + 8 + 4 + 8 + 8;
    OHOS::MessageParcel parcel;
    OHOS::Zelkon::FillParcel(parcel, data, size);
    OHOS::Zelkon::PermanentDeviceInfo record;
    if (record.ReadFromParcel(parcel) && parcel.GetReadPosition() < smallestRecord) {
        abort();
    }
    return 0;
}
