/*
 * Copyright (c) 2026 The libshare_client Authors.
 * Licensed under the Apache License, Version 2.0 (the "License");
 * you may not use this file except in compliance with the License.
 * You may obtain a copy of the License at
 *
 *     http://www.apache.org/licenses/LICENSE-2.0
 *
 * Unless required by applicable law or agreed to in writing, software
 * distributed under the License is distributed on an "AS IS" BASIS,
 * WITHOUT WARRANTIES OR CONDITIONS OF ANY KIND, either express or implied.
 * See the License for the specific language governing permissions and
 * limitations under the License.
 */

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
