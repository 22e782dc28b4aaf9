#include "data_bean.h"

#include "message_parcel.h"
#include "share_common_constants.h"

namespace OHOS {
namespace Zelkon {

bool DataBean::Marshalling(Parcel& parcel) const
{
    auto* messageParcel = dynamic_cast<MessageParcel*>(&parcel);
    return messageParcel != nullptr && parcel.WriteString(fileName) && parcel.WriteInt64(fileSize) &&
           messageParcel->WriteFileDescriptor(fd);
}

} // namespace Zelkon
} // namespace OHOS
