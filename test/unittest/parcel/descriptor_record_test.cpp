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

// The records that carry file descriptors: they travel in the services' order with their
// descriptors, and name the descriptor that cannot travel.
#include <fcntl.h>
#include <gtest/gtest.h>
#include <unistd.h>

#include "captured_log.h"
#include "common_share_object.h"
#include "data_bean.h"
#include "parcel_bytes.h"

namespace OHOS {
namespace Zelkon {
namespace {

// An open descriptor for the test's lifetime.
class OpenFile {
public:
    OpenFile() : fd_(open("/dev/null", O_RDONLY)) {}
    ~OpenFile() { close(fd_); }
    int Fd() const { return fd_; }

private:
    int fd_;
};

ShareItem Item(const std::string& uri, int fd)
{
    ShareItem item;
    item.uri = uri;
    item.fd = fd;
    return item;
}

// Reads a descriptor record and says whether it was one.
bool ReadsDescriptor(MessageParcel& parcel)
{
    const int received = parcel.ReadFileDescriptor();
    if (received < 0) {
        return false;
    }
    close(received);
    return true;
}

TEST(DescriptorRecordTest, DataBeanCarriesItsDescriptor)
{
    OpenFile file;
    DataBean bean;
    bean.fileName = "photo.jpg";
    bean.fileSize = 1 << 20;
    bean.fd = file.Fd();
    MessageParcel parcel;
    ASSERT_TRUE(bean.WriteToParcel(parcel));
    EXPECT_EQ(parcel.ReadString(), "photo.jpg");
    EXPECT_EQ(parcel.ReadInt64(), 1 << 20);
    EXPECT_TRUE(ReadsDescriptor(parcel));
    EXPECT_EQ(parcel.GetReadableBytes(), 0u);
    EXPECT_FALSE(DataBean().WriteToParcel(parcel));
}

TEST(DescriptorRecordTest, ShareItemNamesTheDescriptorThatCannotTravel)
{
    MessageParcel parcel;
    CapturedLog log;
    EXPECT_FALSE(Item("file://docs/a", -1).WriteToParcel(parcel));
    EXPECT_EQ(log.Count("ShareNapi", "WriteFileDescriptor failed, fd -1.", LOG_ERROR), 1u);
    // A uri that does not fit fails before the descriptor, without a line.
    OpenFile file;
    const ShareItem item = Item("file://docs/a", file.Fd());
    MessageParcel full;
    FillLeaving(full, 0);
    log.Clear();
    EXPECT_FALSE(item.WriteToParcel(full));
    EXPECT_TRUE(log.Lines().empty());
    EXPECT_FALSE(full.ContainFileDescriptors());
}

TEST(DescriptorRecordTest, CommonShareObjectCarriesItsItemsInTheServicesOrder)
{
    OpenFile first;
    OpenFile second;
    CommonShareObject object;
    object.networkId = "net-7";
    object.items = {Item("file://docs/a.txt", first.Fd()), Item("file://docs/b.png", second.Fd())};
    MessageParcel parcel;
    ASSERT_TRUE(object.WriteToParcel(parcel));
    // networkId, timeout, type, resumable, the empty content's size word, then the count.
    EXPECT_EQ(parcel.ReadString(), "net-7");
    for (uint32_t word : {0u, 0u, 0u, 1u, 2u}) {
        EXPECT_EQ(parcel.ReadUint32(), word);
    }
    for (const ShareItem& item : object.items) {
        EXPECT_EQ(parcel.ReadString(), item.uri);
        EXPECT_TRUE(ReadsDescriptor(parcel));
    }
    EXPECT_EQ(parcel.GetReadableBytes(), 0u);
}

TEST(DescriptorRecordTest, CommonShareObjectFailsOnAnInvalidDescriptorWithBothLines)
{
    // A number far above what the test opens; no descriptor is open under it.
    constexpr int notOpen = 4000;
    ASSERT_EQ(fcntl(notOpen, F_GETFD), -1);
    OpenFile good;
    for (int badFd : {-1, notOpen}) {
        SCOPED_TRACE(badFd);
        CommonShareObject object;
        object.items = {Item("file://docs/ok", good.Fd()), Item("file://docs/bad", badFd)};
        MessageParcel parcel;
        CapturedLog log;
        EXPECT_FALSE(object.WriteToParcel(parcel));
        EXPECT_EQ(log.Count("ShareNapi", "", LOG_ERROR), 2u);
        EXPECT_TRUE(log.Contains("ShareNapi", "WriteFileDescriptor failed, fd " + std::to_string(badFd) + "."));
        EXPECT_TRUE(log.Contains("ShareNapi", "item.WriteToParcel failed."));
    }
}

} // namespace
} // namespace Zelkon
} // namespace OHOS
