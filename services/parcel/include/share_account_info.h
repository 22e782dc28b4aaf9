#ifndef SHARE_ACCOUNT_INFO_H
#define SHARE_ACCOUNT_INFO_H

#include <string>

#include "parcelable_record.h"

namespace OHOS {
namespace Zelkon {

// The account signed in on this device, as the share manager service reports it.
class ShareAccountInfo : public ParcelableRecord {
public:
    std::string norvaneAccountID;
    std::string norvaneAccountIDHash;
    int32_t status = 0;
    int32_t callingUid = -1;
    std::string nickName;
    std::string avatar;

    bool Marshalling(Parcel& parcel) const override;
    bool ReadFromParcel(Parcel& parcel);
};

} // namespace Zelkon
} // namespace OHOS

#endif // SHARE_ACCOUNT_INFO_H
