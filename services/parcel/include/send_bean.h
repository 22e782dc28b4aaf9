#ifndef SEND_BEAN_H
#define SEND_BEAN_H

#include <string>
#include <vector>

#include "file_item.h"
#include "parcelable_record.h"

namespace OHOS {
namespace Zelkon {

// A transfer with preview information. Its layout is the share service's: an application that talks to a
// service with another layout overrides Marshalling. The host default writes
//   WriteString(previewText), WriteUint32(file count), then per file WriteString(uri), WriteString(name),
//   WriteInt64(size).
class SendBean : public ParcelableRecord {
public:
    std::string previewText;
    std::vector<FileItem> files;

    bool Marshalling(Parcel& parcel) const override;
};

} // namespace Zelkon
} // namespace OHOS

#endif // SEND_BEAN_H
