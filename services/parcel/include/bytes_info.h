#ifndef BYTES_INFO_H
#define BYTES_INFO_H

#include <string>

#include "parcelable_record.h"

namespace OHOS {
namespace Zelkon {

// Bytes to send. Its layout is the services': an application that talks to a service with another layout
// overrides Marshalling. The host default writes WriteString(mimeType), WriteString(bytes).
class BytesInfo : public ParcelableRecord {
public:
    std::string mimeType;
    std::string bytes;

    bool Marshalling(Parcel& parcel) const override;
};

} // namespace Zelkon
} // namespace OHOS

#endif // BYTES_INFO_H
