// Records written and read against bytes recorded from the device's parcel: result, size, limit and bytes.
#include <functional>
#include <gtest/gtest.h>

#include "contact_info.h"
#include "golden_vectors.h"
#include "message_parcel.h"
#include "parcel_bytes.h"
#include "permanent_device_info.h"
#include "sample_records.h"

namespace OHOS {
namespace Zelkon {
namespace {

const std::map<std::string, GoldenVector>& Golden()
{
    static const auto vectors = LoadGoldenVectors(SHARE_TEST_DATA_DIR "/golden.txt");
    return vectors;
}

template <typename Record>
std::function<bool(Parcel&)> Writer(std::function<void(Record&)> init)
{
    return [init](Parcel& parcel) {
        Record record;
        init(record);
        return record.WriteToParcel(parcel);
    };
}

TEST(GoldenRecordTest, WritesTheRecordedBytesResultAndLimit)
{
    const struct {
        std::string name;
        size_t prefill;
        std::function<bool(Parcel&)> write;
    } cases[] = {
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
    for (const auto& c : cases) {
        SCOPED_TRACE(c.name);
        ASSERT_EQ(Golden().count(c.name), 1u);
        const GoldenVector& expected = Golden().at(c.name);
        MessageParcel parcel;
        FillLeaving(parcel, parcel.GetMaxCapacity() - c.prefill);
        EXPECT_EQ(c.write(parcel), expected.ok);
        EXPECT_EQ(parcel.GetDataSize() - c.prefill, expected.size);
        EXPECT_EQ(parcel.GetMaxCapacity(), expected.maxCapacity);
        EXPECT_TRUE(BytesOf(parcel, c.prefill) == expected.bytes);
    }
}

// Reads the recorded bytes whole and writes the record again: the same bytes come out.
template <typename Record>
void ExpectReadBack(const std::string& name)
{
    SCOPED_TRACE(name);
    const GoldenVector& recorded = Golden().at(name);
    MessageParcel parcel;
    LoadBytes(parcel, recorded.bytes);
    Record record;
    ASSERT_TRUE(record.ReadFromParcel(parcel));
    EXPECT_EQ(parcel.GetReadableBytes(), 0u);
    MessageParcel rewritten;
    ASSERT_TRUE(record.WriteToParcel(rewritten));
    EXPECT_TRUE(BytesOf(rewritten) == recorded.bytes);
}

TEST(GoldenRecordTest, ReadsTheRecordedBytesBack)
{
    ExpectReadBack<ShareDeviceInfo>("device_filled");
    ExpectReadBack<ContactInfo>("contact_basic");
    ExpectReadBack<ShareAccountInfo>("account_filled");
    MessageParcel parcel;
    LoadBytes(parcel, Golden().at("permanent_basic").bytes);
    PermanentDeviceInfo device;
    ASSERT_TRUE(device.ReadFromParcel(parcel));
    EXPECT_EQ(device.id, 12);
    EXPECT_EQ(device.deviceName, "Desk PC");
    EXPECT_EQ(device.deviceType, 12);
    EXPECT_EQ(device.deviceId, "udid-77");
    EXPECT_EQ(device.timestamp, 1763800000000LL);
}

} // namespace
} // namespace Zelkon
} // namespace OHOS
