#include "bytes_info.h"

#include "share_common_constants.h"

namespace OHOS {
namespace Zelkon {

bool BytesInfo::Marshalling(Parcel& parcel) const
{
    return parcel.WriteString(mimeType) && parcel.WriteString(bytes);
}

} // namespace Zelkon
} // namespace OHOS
