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

// The limit of a parcel that records raise for their large texts: by the text's length, before the text, once per
// record written, and for good even when the text still does not fit.
#include <gtest/gtest.h>

#include "contact_info.h"
#include "message_parcel.h"
#include "parcel_bytes.h"
#include "share_device_info.h"

namespace OHOS {
namespace Zelkon {
namespace {

TEST(RecordCapacityTest, ADeviceRaisesTheLimitByItsAvatarAndPhotoForEachRecordWritten)
{
    for (size_t avatarLength : {size_t{0}, size_t{4096}, size_t{300 * 1024}}) {
        SCOPED_TRACE(avatarLength);
        ShareDeviceInfo device;
        device.avatar = std::string(avatarLength, 'v');
        device.contactInfo.contactPhoto = "pq";
        MessageParcel parcel;
        const size_t before = parcel.GetMaxCapacity();
        ASSERT_TRUE(device.WriteToParcel(parcel));
        EXPECT_EQ(parcel.GetMaxCapacity(), before + avatarLength + 2);
        ASSERT_TRUE(device.WriteToParcel(parcel));
        EXPECT_EQ(parcel.GetMaxCapacity(), before + 2 * (avatarLength + 2));
    }
}

TEST(RecordCapacityTest, TheRaisedLimitStaysWhenTheTextStillDoesNotFit)
{
    ShareDeviceInfo device;
    device.avatar = std::string(100, 'v');
    MessageParcel parcel;
    // Room for the two empty names and the avatar's length word: the raise by 100 cannot hold 104 bytes of body.
    FillLeaving(parcel, 20);
    const size_t before = parcel.GetMaxCapacity();
    EXPECT_FALSE(device.WriteToParcel(parcel));
    EXPECT_EQ(parcel.GetMaxCapacity(), before + 100);

    ContactInfo contact;
    contact.contactPhoto = std::string(100, 'p');
    MessageParcel contactParcel;
    // Room for the kind and the empty name only: the photo fails after the raise.
    FillLeaving(contactParcel, 12);
    EXPECT_FALSE(contact.WriteToParcel(contactParcel));
    EXPECT_EQ(contactParcel.GetMaxCapacity(), before + 100);
}

} // namespace
} // namespace Zelkon
} // namespace OHOS
