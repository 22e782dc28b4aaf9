// The generic share payload: its wire order, its files and descriptors, and where a write stops.
#include <fcntl.h>
#include <gtest/gtest.h>
#include <unistd.h>

#include "common_share_object.h"
#include "hilog/log_capture.h"
#include "parcel_test_util.h"
#include "parcel_util.h"

namespace OHOS {
namespace Zelkon {
namespace {

using HiviewDFX::ScopedLogCapture;

constexpr unsigned int NAPI_DOMAIN = 0xD004610;

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

CommonShareObject ShareObject(std::vector<ShareItem> items, std::string content)
{
    CommonShareObject object;
    object.type = 2;
    object.timeout = 30000;
    object.items = std::move(items);
    object.content = std::move(content);
    object.networkId = "net-7";
    object.resumable = true;
    return object;
}

// The service's reading order: networkId, timeout, type, resumable, content, count, then uri and fd per item.
void ExpectWireOrder(MessageParcel& parcel, const CommonShareObject& object)
{
    EXPECT_EQ(parcel.ReadString(), object.networkId);
    EXPECT_EQ(parcel.ReadInt32(), object.timeout);
    EXPECT_EQ(parcel.ReadInt32(), object.type);
    EXPECT_EQ(parcel.ReadBool(), object.resumable);
    std::string content;
    EXPECT_TRUE(ParcelUtil::ReadBigString(parcel, content, 5242880, 1));
    EXPECT_TRUE(content == object.content);
    ASSERT_EQ(parcel.ReadUint32(), object.items.size());
    for (const ShareItem& item : object.items) {
        EXPECT_EQ(parcel.ReadString(), item.uri);
        const int received = parcel.ReadFileDescriptor();
        EXPECT_GE(received, 0);
        close(received);
    }
    EXPECT_EQ(parcel.GetReadableBytes(), 0u);
}

TEST(CommonShareObjectTest, WritesInTheServicesOrderNotTheDeclarationOrder)
{
    OpenFile first;
    OpenFile second;
    const CommonShareObject object =
        ShareObject({Item("file://docs/a.txt", first.Fd()), Item("file://docs/b.png", second.Fd())}, "hello");
    MessageParcel parcel;
    ASSERT_TRUE(object.WriteToParcel(parcel));
    EXPECT_TRUE(parcel.ContainFileDescriptors());
    ExpectWireOrder(parcel, object);
}

TEST(CommonShareObjectTest, WritesTheCountZeroForNoItems)
{
    const CommonShareObject object = ShareObject({}, "");
    MessageParcel parcel;
    ASSERT_TRUE(object.WriteToParcel(parcel));
    EXPECT_FALSE(parcel.ContainFileDescriptors());
    // networkId "net-7" (12), two ints and the bool (12), the size word 1 alone (4), the count (4).
    EXPECT_EQ(parcel.GetDataSize(), 32u);
    ExpectWireOrder(parcel, object);
}

TEST(CommonShareObjectTest, CarriesFourMebibytesOfContent)
{
    std::string content(4 * 1024 * 1024, 'c');
    content.back() = 'e';
    OpenFile file;
    const CommonShareObject object = ShareObject({Item("file://docs/big", file.Fd())}, content);
    MessageParcel parcel;
    ASSERT_TRUE(object.WriteToParcel(parcel));
    ExpectWireOrder(parcel, object);
}

TEST(CommonShareObjectTest, FailsOnAnInvalidDescriptorWithBothLines)
{
    // A number far above what the test opens; no descriptor is open under it.
    constexpr int notOpen = 4000;
    ASSERT_EQ(fcntl(notOpen, F_GETFD), -1);
    OpenFile good;
    for (int badFd : {-1, notOpen}) {
        SCOPED_TRACE(badFd);
        const CommonShareObject object =
            ShareObject({Item("file://docs/ok", good.Fd()), Item("file://docs/bad", badFd)}, "x");
        MessageParcel parcel;
        ScopedLogCapture capture;
        EXPECT_FALSE(object.WriteToParcel(parcel));
        const auto lines = LinesOf(capture, "ShareNapi");
        ASSERT_EQ(lines.size(), 2u);
        EXPECT_EQ(lines[0].domain, NAPI_DOMAIN);
        EXPECT_EQ(lines[0].level, LOG_ERROR);
        EXPECT_TRUE(capture.Contains("ShareNapi", "WriteFileDescriptor failed, fd " + std::to_string(badFd) + "."));
        EXPECT_TRUE(capture.Contains("ShareNapi", "item.WriteToParcel failed."));
    }
}

TEST(CommonShareObjectTest, LogsTheStepThatDoesNotFit)
{
    // Room left before each step: networkId "net-7" takes 12 bytes, the three words 12, the size word 4.
    const std::vector<std::pair<size_t, std::string>> steps = {
        {0, "Write networkId failed."},  {12, "Write timeout failed."},    {16, "Write type failed."},
        {20, "Write resumable failed."}, {24, "Write big string failed."}, {28, "Write file size failed."},
    };
    const CommonShareObject object = ShareObject({}, "");
    for (const auto& [room, message] : steps) {
        SCOPED_TRACE(message);
        MessageParcel parcel;
        FillLeaving(parcel, room);
        ScopedLogCapture capture;
        EXPECT_FALSE(object.WriteToParcel(parcel));
        const auto lines = LinesOf(capture, "ShareNapi");
        ASSERT_EQ(lines.size(), 1u);
        EXPECT_TRUE(capture.Contains("ShareNapi", message));
    }
}

TEST(ShareItemTest, NeedsAMessageParcelForItsDescriptor)
{
    OpenFile file;
    const ShareItem item = Item("file://docs/a", file.Fd());
    Parcel plain;
    ScopedLogCapture capture;
    EXPECT_FALSE(item.WriteToParcel(plain));
    EXPECT_TRUE(capture.Contains("ShareNapi", "WriteFileDescriptor failed, fd " + std::to_string(file.Fd()) + "."));
}

TEST(ShareItemTest, FailsSilentlyWhenTheUriDoesNotFit)
{
    OpenFile file;
    MessageParcel parcel;
    FillLeaving(parcel, 0);
    ScopedLogCapture capture;
    EXPECT_FALSE(Item("file://docs/a", file.Fd()).WriteToParcel(parcel));
    EXPECT_TRUE(LinesOf(capture, "ShareNapi").empty());
    EXPECT_FALSE(parcel.ContainFileDescriptors());
}

} // namespace
} // namespace Zelkon
} // namespace OHOS
