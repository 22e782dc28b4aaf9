// The device record: field layout, round trips, reading cut-short replies, write failures and the avatar limit.
#include <functional>
#include <gtest/gtest.h>

#include "hilog/log_capture.h"
#include "parcel_test_util.h"

namespace OHOS {
namespace Zelkon {
namespace {

using HiviewDFX::ScopedLogCapture;

constexpr unsigned int PROXY_DOMAIN = 0xD004612;
constexpr unsigned int STUB_DOMAIN = 0xD004613;

// One field as the service lays it out: where it starts in the record and what each side logs when it fails.
struct FieldLayout {
    size_t offset;
    std::string writeFailure;
    std::string readFailure;
    std::string readTag;
};

// Writes the record with the parcel's own primitives, field by field, noting where each field starts.
std::vector<FieldLayout> LayOut(Parcel& parcel, const ShareDeviceInfo& d)
{
    std::vector<FieldLayout> fields;
    auto step = [&](const std::function<bool()>& write, const std::string& writeFailure, const std::string& readFailure,
                    const std::string& readTag = "ShareStub") {
        fields.push_back({parcel.GetDataSize(), writeFailure, readFailure, readTag});
        EXPECT_TRUE(write());
    };
    step([&] { return parcel.WriteString(d.deviceName); }, "", "");
    step([&] { return parcel.WriteString(d.norvaneIdName); }, "WriteString norvaneIdName failed.",
         "ReadString norvaneIdName failed.");
    step([&] { return parcel.WriteString(d.avatar); }, "WriteString avatar failed.", "ReadString avatar failed.");
    step([&] { return parcel.WriteInt32(d.colorId); }, "WriteInt32 colorId failed.", "ReadInt32 colorId failed.");
    step([&] { return parcel.WriteInt32(d.eventCode); }, "WriteInt32 eventCode failed.", "ReadInt32 eventCode failed.");
    step([&] { return parcel.WriteInt32(d.stateCode); }, "WriteInt32 stateCode failed.", "ReadInt32 stateCode failed.");
    step([&] { return parcel.WriteInt32(d.percent); }, "WriteInt32 percent failed.", "ReadInt32 percent failed.");
    step([&] { return parcel.WriteInt32(d.speed); }, "WriteInt32 speed failed.", "ReadInt32 speed failed.");
    step([&] { return parcel.WriteBool(d.isDisappeared); }, "WriteBool isDisappeared failed.",
         "ReadBool isDisappeared failed.");
    step([&] { return parcel.WriteInt32(d.deviceType); }, "WriteInt32 deviceType failed.",
         "ReadInt32 deviceType failed.");
    step([&] { return parcel.WriteString(d.deviceId); }, "WriteString deviceId failed.", "ReadString deviceId failed.");
    step([&] { return parcel.WriteInt32(d.nearbyVersion); }, "WriteInt32 nearbyVersion failed.",
         "ReadInt32 nearbyVersion failed.");
    step([&] { return parcel.WriteInt64(d.lastSharedTime); }, "WriteInt64 lastSharedTime failed.",
         "ReadInt64 lastSharedTime failed.");
    step([&] { return parcel.WriteBool(d.isSameAccount); }, "WriteBool isSameAccount failed.",
         "ReadBool isSameAccount failed.");
    step(
        [&] {
            return parcel.WriteInt32(d.contactInfo.contactKind) && parcel.WriteString(d.contactInfo.contactName) &&
                   parcel.WriteString(d.contactInfo.contactPhoto);
        },
        "Write contactInfo failed.", "Read contactInfo failed.");
    step([&] { return parcel.WriteBool(d.isOHDevice); }, "Write isOHDevice failed.", "Read isOHDevice failed.");
    step([&] { return parcel.WriteUint32(d.deviceFounder); }, "WriteInt32 deviceFounder failed.",
         "ReadInt32 deviceFounder failed.");
    step([&] { return parcel.WriteString(d.concurentId); }, "WriteString concurentId failed.",
         "ReadString concurentId failed.", "ShareProxy");
    step([&] { return parcel.WriteInt32(d.extraValue); }, "", "");
    return fields;
}

TEST(ShareDeviceInfoTest, WritesTheNineteenFieldsInDeclarationOrder)
{
    const ShareDeviceInfo device = FilledDevice();
    MessageParcel expected;
    ASSERT_EQ(LayOut(expected, device).size(), 19u);
    MessageParcel actual;
    ASSERT_TRUE(device.WriteToParcel(actual));
    EXPECT_TRUE(BytesOf(actual) == BytesOf(expected));
}

ShareDeviceInfo ExtremeDevice()
{
    ShareDeviceInfo device;
    device.deviceName = std::string("nul\0inside", 10);
    device.norvaneIdName = "\xe8\xae\xbe\xe5\xa4\x87";
    device.avatar = std::string(100 * 1024, 'a');
    device.colorId = INT32_MIN;
    device.eventCode = INT32_MAX;
    device.stateCode = -1;
    device.percent = 100;
    device.speed = INT32_MAX;
    device.isDisappeared = true;
    device.deviceType = INT32_MIN;
    device.deviceId = std::string(1, '\0');
    device.nearbyVersion = -9;
    device.lastSharedTime = INT64_MIN;
    device.isSameAccount = false;
    device.contactInfo.contactKind = INT32_MAX;
    device.contactInfo.contactName = "x";
    device.contactInfo.contactPhoto = std::string(150 * 1024, 'p');
    device.isOHDevice = true;
    device.deviceFounder = UINT32_MAX;
    device.concurentId = "abc";
    device.extraValue = INT32_MIN;
    return device;
}

TEST(ShareDeviceInfoTest, RoundTripsOrdinaryDefaultAndExtremeValues)
{
    for (const ShareDeviceInfo& device : {FilledDevice(), ShareDeviceInfo(), ExtremeDevice()}) {
        MessageParcel parcel;
        ASSERT_TRUE(device.WriteToParcel(parcel));
        const size_t maxCapacity = parcel.GetMaxCapacity();
        ShareDeviceInfo read;
        ASSERT_TRUE(read.ReadFromParcel(parcel));
        ExpectSameDevice(read, device);
        EXPECT_EQ(parcel.GetReadableBytes(), 0u);
        EXPECT_EQ(parcel.GetMaxCapacity(), maxCapacity);
    }
}

TEST(ShareDeviceInfoTest, CopiesEveryFieldWithTheContact)
{
    const ShareDeviceInfo original = ExtremeDevice();
    const ShareDeviceInfo copy = original;
    ExpectSameDevice(copy, original);
    std::vector<ShareDeviceInfo> list(3, original);
    ExpectSameDevice(list.back(), original);
}

TEST(ShareDeviceInfoTest, ReadingAReplyCutAtAnyByteFails)
{
    MessageParcel full;
    ASSERT_TRUE(FilledDevice().WriteToParcel(full));
    const std::vector<uint8_t> bytes = BytesOf(full);
    for (size_t length = 0; length < bytes.size(); ++length) {
        SCOPED_TRACE(length);
        MessageParcel cut;
        LoadBytes(cut, bytes, length);
        ShareDeviceInfo device;
        EXPECT_FALSE(device.ReadFromParcel(cut));
    }
}

TEST(ShareDeviceInfoTest, ReadingAReplyCutAtAFieldLogsThatField)
{
    const ShareDeviceInfo device = FilledDevice();
    MessageParcel full;
    const std::vector<FieldLayout> fields = LayOut(full, device);
    const std::vector<uint8_t> bytes = BytesOf(full);
    for (const FieldLayout& field : fields) {
        SCOPED_TRACE(field.readFailure.empty() ? std::to_string(field.offset) : field.readFailure);
        MessageParcel cut;
        LoadBytes(cut, bytes, field.offset);
        ScopedLogCapture capture;
        ShareDeviceInfo read;
        EXPECT_FALSE(read.ReadFromParcel(cut));
        const auto lines = capture.Lines();
        if (field.readFailure.empty()) {
            EXPECT_TRUE(lines.empty());
            continue;
        }
        ASSERT_EQ(lines.size(), 1u);
        EXPECT_EQ(lines[0].tag, field.readTag);
        EXPECT_EQ(lines[0].domain, field.readTag == "ShareProxy" ? PROXY_DOMAIN : STUB_DOMAIN);
        EXPECT_EQ(lines[0].level, LOG_ERROR);
        EXPECT_TRUE(capture.Contains(field.readTag, field.readFailure));
    }
}

TEST(ShareDeviceInfoTest, AFailedWriteLogsTheFieldAndKeepsWhatWasWritten)
{
    // Empty avatar and photo leave the limit alone, so the room left decides which field fails.
    ShareDeviceInfo device = FilledDevice();
    device.avatar.clear();
    device.contactInfo.contactPhoto.clear();
    MessageParcel layout;
    const std::vector<FieldLayout> fields = LayOut(layout, device);
    for (const FieldLayout& field : fields) {
        SCOPED_TRACE(field.writeFailure.empty() ? std::to_string(field.offset) : field.writeFailure);
        MessageParcel parcel;
        FillLeaving(parcel, field.offset);
        const size_t start = parcel.GetDataSize();
        ScopedLogCapture capture;
        EXPECT_FALSE(device.WriteToParcel(parcel));
        // A string that does not fit leaves its length word behind.
        EXPECT_GE(parcel.GetDataSize() - start, field.offset);
        EXPECT_LE(parcel.GetDataSize() - start, field.offset + sizeof(int32_t));
        const auto lines = capture.Lines();
        if (field.writeFailure.empty()) {
            EXPECT_TRUE(lines.empty());
            continue;
        }
        ASSERT_EQ(lines.size(), 1u);
        EXPECT_EQ(lines[0].domain, PROXY_DOMAIN);
        EXPECT_EQ(lines[0].level, LOG_ERROR);
        EXPECT_TRUE(capture.Contains("ShareProxy", field.writeFailure));
    }
}

TEST(ShareDeviceInfoTest, RaisesTheLimitByTheAvatarAndPhotoLengthsForGood)
{
    for (size_t avatarLength : {size_t{0}, size_t{1}, size_t{4096}, size_t{300 * 1024}}) {
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

TEST(ShareDeviceInfoTest, KeepsTheRaisedLimitWhenTheAvatarStillDoesNotFit)
{
    ShareDeviceInfo device;
    device.avatar = std::string(100, 'v');
    MessageParcel parcel;
    // Room for the two empty names and the avatar's length word: the raise by 100 cannot hold 104 bytes of body.
    FillLeaving(parcel, 20);
    const size_t before = parcel.GetMaxCapacity();
    const size_t start = parcel.GetDataSize();
    ScopedLogCapture capture;
    EXPECT_FALSE(device.WriteToParcel(parcel));
    EXPECT_EQ(parcel.GetMaxCapacity(), before + 100);
    EXPECT_EQ(parcel.GetDataSize() - start, 20u);
    EXPECT_TRUE(capture.Contains("ShareProxy", "WriteString avatar failed."));
}

TEST(ShareDeviceInfoTest, ReadsDeviceFounderAboveTheSignedRangeUnchanged)
{
    for (uint32_t founder : {0x7FFFFFFFu, 0x80000000u, 0xFFFFFFFEu}) {
        ShareDeviceInfo device;
        device.deviceFounder = founder;
        MessageParcel parcel;
        ASSERT_TRUE(device.WriteToParcel(parcel));
        ShareDeviceInfo read;
        ASSERT_TRUE(read.ReadFromParcel(parcel));
        EXPECT_EQ(read.deviceFounder, founder);
    }
}

} // namespace
} // namespace Zelkon
} // namespace OHOS
