#include "common_share_object.h"

#include "parcel_util.h"
#include "share_common_constants.h"
#include "share_log.h"
#include "share_message_constants.h"

namespace OHOS {
namespace Zelkon {

#define WRITE_STEP(ok, text) SHARE_CHECKED(SHARE_NAPI_LABEL, ok, text)

bool CommonShareObject::Marshalling(MessageParcel& parcel) const
{
    if (!WRITE_STEP(parcel.WriteString(networkId), "Write networkId failed.") ||
        !WRITE_STEP(parcel.WriteInt32(timeout), "Write timeout failed.") ||
        !WRITE_STEP(parcel.WriteInt32(type), "Write type failed.") ||
        !WRITE_STEP(parcel.WriteBool(resumable), "Write resumable failed.") ||
        !WRITE_STEP(ParcelUtil::WriteBigString(parcel, content), "Write big string failed.") ||
        !WRITE_STEP(parcel.WriteUint32(static_cast<uint32_t>(items.size())), "Write file size failed.")) {
        return false;
    }
    for (const ShareItem& item : items) {
        if (!WRITE_STEP(item.WriteToParcel(parcel), "item.WriteToParcel failed.")) {
            return false;
        }
    }
    return true;
}

} // namespace Zelkon
} // namespace OHOS
