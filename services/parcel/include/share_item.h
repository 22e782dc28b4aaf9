#ifndef SHARE_ITEM_H
#define SHARE_ITEM_H

#include <string>

#include "parcelable_record.h"

namespace OHOS {
namespace Zelkon {

// One file of a generic share: its location and an open descriptor that the service receives a copy of.
class ShareItem : public ParcelableRecord {
public:
    std::string uri;
    int32_t fd = -1;

    // The parcel must be a MessageParcel: the descriptor travels as a descriptor record.
    bool Marshalling(Parcel& parcel) const override;
};

} // namespace Zelkon
} // namespace OHOS

#endif // SHARE_ITEM_H
