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

/*
 * Base of the records that cross the process boundary as parcelables. Request code writes a record through
 * WriteToParcel, so the record's dynamic type decides the layout through its virtual Marshalling.
 */
#ifndef PARCELABLE_RECORD_H
#define PARCELABLE_RECORD_H

#include "parcel.h"

namespace OHOS {
namespace Zelkon {

class ParcelableRecord : public Parcelable {
public:
    bool WriteToParcel(Parcel& parcel) const { return Marshalling(parcel); }
};

} // namespace Zelkon
} // namespace OHOS

#endif // PARCELABLE_RECORD_H
