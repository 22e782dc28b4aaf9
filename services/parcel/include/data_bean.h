#ifndef DATA_BEAN_H
#define DATA_BEAN_H

#include <string>

#include "parcelable_record.h"

namespace OHOS {
namespace Zelkon {

// A transfer of one open file. Its layout is the services': an application that talks to a service with another
// layout overrides Marshalling. The host default writes WriteString(fileName), WriteInt64(fileSize), then the
// descriptor as a descriptor record (the parcel must be a MessageParcel).
class DataBean : public ParcelableRecord {
public:
    std::string fileName;
    int64_t fileSize = 0;
    int32_t fd = -1;

    bool Marshalling(Parcel& parcel) const override;
};

} // namespace Zelkon
} // namespace OHOS

#endif // DATA_BEAN_H
