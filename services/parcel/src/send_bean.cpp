#include "send_bean.h"

#include "share_common_constants.h"
#include "share_message_constants.h"

namespace OHOS {
namespace Zelkon {

bool SendBean::Marshalling(Parcel& parcel) const
{
    if (!parcel.WriteString(previewText) || !parcel.WriteUint32(static_cast<uint32_t>(files.size()))) {
        return false;
    }
    for (const FileItem& file : files) {
        if (!parcel.WriteString(file.uri) || !parcel.WriteString(file.name) || !parcel.WriteInt64(file.size)) {
            return false;
        }
    }
    return true;
}

} // namespace Zelkon
} // namespace OHOS
