// Records written and read against bytes recorded from the device's parcel.
#include <functional>
#include <gtest/gtest.h>

#include "golden_vectors.h"
#include "parcel_test_util.h"
#include "permanent_device_info.h"
#include "share_account_info.h"

namespace OHOS {
namespace Zelkon {
namespace {

const std::map<std::string, GoldenVector>& Golden()
{
    static const auto vectors = LoadGoldenVectors(SHARE_TEST_DATA_DIR "/golden.txt");
    return vectors;
}

struct GoldenWriteCase {
    std::string name;
    size_t prefill;
    std::function<bool(Parcel&)> write;
};

template <typename Record>
std::function<bool(Parcel&)> Writer(std::function<void(Record&)> init)
{
    return [init](Parcel& parcel) {
        Record record;
        init(record);
        return record.WriteToParcel(parcel);
    };
}

const std::vector<GoldenWriteCase>& WriteCases()
{
    static const std::vector<GoldenWriteCase> cases = {
        {"contact_basic", 0, Writer<ContactInfo>([](ContactInfo& r) {
             r.contactKind = 2;
             r.contactName = "Ada";
             r.contactPhoto = "data:image/png;base64,AAAA";
         })},
        {"device_default", 0, Writer<ShareDeviceInfo>([](ShareDeviceInfo&) {})},
        {"device_filled", 0, Writer<ShareDeviceInfo>([](ShareDeviceInfo& r) { r = FilledDeviceWithLargeAvatar(); })},
        {"device_big_avatar", 0, Writer<ShareDeviceInfo>([](ShareDeviceInfo& r) {
             r.deviceName = "cam";
             r.avatar = std::string(300 * 1024, 'v');
         })},
        {"device_after_prefill", 200000, Writer<ShareDeviceInfo>([](ShareDeviceInfo& r) {
             r.deviceName = "near-full";
             r.avatar = "tiny";
             r.contactInfo.contactPhoto = "p";
         })},
        {"device_huge_name", 0,
         Writer<ShareDeviceInfo>([](ShareDeviceInfo& r) { r.deviceName = std::string(250 * 1024, 'n'); })},
        {"account_default", 0, Writer<ShareAccountInfo>([](ShareAccountInfo&) {})},
        {"account_filled", 0, Writer<ShareAccountInfo>([](ShareAccountInfo& r) { r = FilledAccount(); })},
        {"account_huge_avatar", 0, Writer<ShareAccountInfo>([](ShareAccountInfo& r) {
             r.nickName = "big";
             r.avatar = std::string(300 * 1024, 'z');
         })},
    };
    return cases;
}

TEST(GoldenRecordTest, WritesTheRecordedBytesResultAndCapacity)
{
    for (const GoldenWriteCase& testCase : WriteCases()) {
        SCOPED_TRACE(testCase.name);
        ASSERT_EQ(Golden().count(testCase.name), 1u);
        const GoldenVector& expected = Golden().at(testCase.name);
        MessageParcel parcel;
        for (size_t i = 0; i < testCase.prefill / sizeof(int32_t); ++i) {
            ASSERT_TRUE(parcel.WriteInt32(0));
        }
        EXPECT_EQ(testCase.write(parcel), expected.ok);
        EXPECT_EQ(parcel.GetDataSize() - testCase.prefill, expected.size);
        EXPECT_EQ(parcel.GetMaxCapacity(), expected.maxCapacity);
        EXPECT_TRUE(BytesOf(parcel, testCase.prefill) == expected.bytes);
    }
}

template <typename Record>
Record ReadGolden(const std::string& name, bool& ok)
{
    const GoldenVector& vector = Golden().at(name);
    MessageParcel parcel;
    LoadBytes(parcel, vector.bytes, vector.bytes.size());
    Record record;
    ok = record.ReadFromParcel(parcel);
    EXPECT_EQ(parcel.GetReadableBytes(), 0u);
    return record;
}

TEST(GoldenRecordTest, ReadsTheRecordedDeviceBack)
{
    bool ok = false;
    ShareDeviceInfo device = ReadGolden<ShareDeviceInfo>("device_filled", ok);
    ASSERT_TRUE(ok);
    ExpectSameDevice(device, FilledDeviceWithLargeAvatar());
}

TEST(GoldenRecordTest, ReadsTheRecordedContactBack)
{
    bool ok = false;
    ContactInfo contact = ReadGolden<ContactInfo>("contact_basic", ok);
    ASSERT_TRUE(ok);
    EXPECT_EQ(contact.contactKind, 2);
    EXPECT_EQ(contact.contactName, "Ada");
    EXPECT_EQ(contact.contactPhoto, "data:image/png;base64,AAAA");
}

TEST(GoldenRecordTest, ReadsTheRecordedAccountBack)
{
    bool ok = false;
    ShareAccountInfo account = ReadGolden<ShareAccountInfo>("account_filled", ok);
    ASSERT_TRUE(ok);
    const ShareAccountInfo expected = FilledAccount();
    EXPECT_EQ(account.norvaneAccountID, expected.norvaneAccountID);
    EXPECT_EQ(account.norvaneAccountIDHash, expected.norvaneAccountIDHash);
    EXPECT_EQ(account.status, expected.status);
    EXPECT_EQ(account.callingUid, expected.callingUid);
    EXPECT_EQ(account.nickName, expected.nickName);
    EXPECT_EQ(account.avatar, expected.avatar);
}

TEST(GoldenRecordTest, ReadsTheRecordedPermanentDevice)
{
    bool ok = false;
    PermanentDeviceInfo device = ReadGolden<PermanentDeviceInfo>("permanent_basic", ok);
    ASSERT_TRUE(ok);
    EXPECT_EQ(device.id, 12);
    EXPECT_EQ(device.deviceName, "Desk PC");
    EXPECT_EQ(device.deviceType, 12);
    EXPECT_EQ(device.deviceId, "udid-77");
    EXPECT_EQ(device.timestamp, 1763800000000LL);
}

} // namespace
} // namespace Zelkon
} // namespace OHOS
