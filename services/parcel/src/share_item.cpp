#include "share_item.h"

#include "message_parcel.h"
#include "share_common_constants.h"
#include "share_log.h"

namespace OHOS {
namespace Zelkon {

bool ShareItem::Marshalling(Parcel& parcel) const
{
    if (!parcel.WriteString(uri)) {
        return false;
    }
    auto* messageParcel = dynamic_cast<MessageParcel*>(&parcel);
    if (messageParcel == nullptr || !messageParcel->WriteFileDescriptor(fd)) {
        SHARE_NAPI_LOGE("WriteFileDescriptor failed, fd %{public}d.", fd);
        return false;
    }
    return true;
}

} // namespace Zelkon
} // namespace OHOS
