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

#include "share_account_info.h"

#include "share_common_constants.h"
#include "share_log.h"

namespace OHOS {
namespace Zelkon {

#define WRITE_STEP(ok, text) SHARE_CHECKED(SHARE_PROXY_LABEL, ok, text)
#define READ_STEP(ok, text) SHARE_CHECKED(SHARE_STUB_LABEL, ok, text)

bool ShareAccountInfo::Marshalling(Parcel& parcel) const
{
    return WRITE_STEP(parcel.WriteString(norvaneAccountID), "WriteString norvaneAccountID failed.") &&
           WRITE_STEP(parcel.WriteString(norvaneAccountIDHash), "WriteString norvaneAccountIDHash failed.") &&
           WRITE_STEP(parcel.WriteInt32(status), "WriteInt32 status failed.") &&
           WRITE_STEP(parcel.WriteInt32(callingUid), "WriteInt32 callingUid failed.") &&
           WRITE_STEP(parcel.WriteString(nickName), "WriteString nickName failed.") &&
           WRITE_STEP(parcel.WriteString(avatar), "WriteString avatar failed.");
}

bool ShareAccountInfo::ReadFromParcel(Parcel& parcel)
{
    return READ_STEP(parcel.ReadString(norvaneAccountID), "ReadString norvaneAccountID failed.") &&
           READ_STEP(parcel.ReadString(norvaneAccountIDHash), "ReadString norvaneAccountIDHash failed.") &&
           READ_STEP(parcel.ReadInt32(status), "ReadInt32 status failed.") &&
           READ_STEP(parcel.ReadInt32(callingUid), "ReadInt32 callingUid failed.") &&
           READ_STEP(parcel.ReadString(nickName), "ReadString nickName failed.") &&
           READ_STEP(parcel.ReadString(avatar), "ReadString avatar failed.");
}

} // namespace Zelkon
} // namespace OHOS
