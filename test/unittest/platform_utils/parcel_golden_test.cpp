// Primitive writes against the bytes the device's parcel produced for the same calls, and the recorded bytes read
// back with our parcel.
#include <gtest/gtest.h>

#include <climits>
#include <cstdint>
#include <functional>
#include <map>
#include <string>
#include <vector>

#include "golden_vectors.h"
#include "parcel.h"
#include "parcel_bytes.h"

namespace OHOS {
namespace {

using Zelkon::GoldenVector;

const std::map<std::string, GoldenVector>& Golden()
{
    static const auto vectors = Zelkon::LoadGoldenVectors(SHARE_TEST_DATA_DIR "/golden.txt");
    return vectors;
}

const std::vector<std::string> SHORT_STRINGS = {"a",      "ab",      "abc",      "abcd",     "abcde",
                                                "abcdef", "abcdefg", "abcdefgh", "abcdefghi"};
const std::string UTF8_TEXT = "\xe8\xae\xbe\xe5\xa4\x87 caf\xc3\xa9";
const std::string OVERSIZED(210 * 1024, 'x');
constexpr size_t RAISE = 16 * 1024;

struct PrimitiveCase {
    std::string name;
    std::function<bool(Parcel&)> write;
    // Reads every value of the case from the start of a parcel holding the recorded bytes.
    std::function<void(Parcel&)> readBack;
};

const std::vector<PrimitiveCase>& Cases()
{
    static const std::vector<PrimitiveCase> cases = {
        {"int32_five", [](Parcel& p) { return p.WriteInt32(5); }, [](Parcel& p) { EXPECT_EQ(p.ReadInt32(), 5); }},
        {"int32_extremes",
         [](Parcel& p) { return p.WriteInt32(INT32_MIN) && p.WriteInt32(INT32_MAX) && p.WriteInt32(-1); },
         [](Parcel& p) {
             EXPECT_EQ(p.ReadInt32(), INT32_MIN);
             EXPECT_EQ(p.ReadInt32(), INT32_MAX);
             EXPECT_EQ(p.ReadInt32(), -1);
         }},
        {"uint32_max", [](Parcel& p) { return p.WriteUint32(0xFFFFFFFFu) && p.WriteUint32(0x80000001u); },
         [](Parcel& p) {
             EXPECT_EQ(p.ReadUint32(), 0xFFFFFFFFu);
             EXPECT_EQ(p.ReadUint32(), 0x80000001u);
         }},
        {"int64_values",
         [](Parcel& p) { return p.WriteInt64(-2) && p.WriteInt64(INT64_MAX) && p.WriteInt64(0x0102030405060708LL); },
         [](Parcel& p) {
             EXPECT_EQ(p.ReadInt64(), -2);
             EXPECT_EQ(p.ReadInt64(), INT64_MAX);
             EXPECT_EQ(p.ReadInt64(), 0x0102030405060708LL);
         }},
        {"bools", [](Parcel& p) { return p.WriteBool(true) && p.WriteBool(false); },
         [](Parcel& p) {
             bool first = false;
             bool second = true;
             EXPECT_TRUE(p.ReadBool(first) && first);
             EXPECT_TRUE(p.ReadBool(second) && !second);
         }},
        {"int8_values", [](Parcel& p) { return p.WriteInt8(-1) && p.WriteInt8(127) && p.WriteInt8(0); },
         [](Parcel& p) {
             EXPECT_EQ(p.ReadInt8(), -1);
             EXPECT_EQ(p.ReadInt8(), 127);
             int8_t zero = 1;
             EXPECT_TRUE(p.ReadInt8(zero));
             EXPECT_EQ(zero, 0);
         }},
        {"string_empty", [](Parcel& p) { return p.WriteString(""); },
         [](Parcel& p) {
             std::string value = "before";
             EXPECT_TRUE(p.ReadString(value));
             EXPECT_EQ(value, "");
         }},
        {"string_lengths_1_to_9",
         [](Parcel& p) {
             for (const std::string& s : SHORT_STRINGS) {
                 if (!p.WriteString(s)) {
                     return false;
                 }
             }
             return true;
         },
         [](Parcel& p) {
             for (const std::string& s : SHORT_STRINGS) {
                 EXPECT_EQ(p.ReadString(), s);
             }
         }},
        {"string_utf8", [](Parcel& p) { return p.WriteString(UTF8_TEXT); },
         [](Parcel& p) { EXPECT_EQ(p.ReadString(), UTF8_TEXT); }},
        {"string_1000", [](Parcel& p) { return p.WriteString(std::string(1000, 'q')); },
         [](Parcel& p) { EXPECT_EQ(p.ReadString(), std::string(1000, 'q')); }},
        {"string16_token", [](Parcel& p) { return p.WriteString16(u"ohos.Zelkon.ZelkonService"); },
         [](Parcel& p) { EXPECT_EQ(p.ReadString16(), u"ohos.Zelkon.ZelkonService"); }},
        {"string16_odd", [](Parcel& p) { return p.WriteString16(u"abc"); },
         [](Parcel& p) { EXPECT_EQ(p.ReadString16(), u"abc"); }},
        {"mixed_sequence",
         [](Parcel& p) {
             return p.WriteInt32(7) && p.WriteString("dev-01") && p.WriteBool(true) && p.WriteInt64(1700000000123LL) &&
                    p.WriteUint32(3u);
         },
         [](Parcel& p) {
             EXPECT_EQ(p.ReadInt32(), 7);
             EXPECT_EQ(p.ReadString(), "dev-01");
             EXPECT_TRUE(p.ReadBool());
             EXPECT_EQ(p.ReadInt64(), 1700000000123LL);
             EXPECT_EQ(p.ReadUint32(), 3u);
         }},
        {"over_default_max", [](Parcel& p) { return p.WriteString(OVERSIZED); },
         [](Parcel& p) {
             // Only the length word was kept: the string cannot be read and the word can be read again.
             std::string value = "before";
             EXPECT_FALSE(p.ReadString(value));
             EXPECT_EQ(value, "");
             EXPECT_EQ(p.GetReadPosition(), 0u);
             EXPECT_EQ(p.ReadInt32(), static_cast<int32_t>(OVERSIZED.size()));
         }},
        {"raised_max",
         [](Parcel& p) {
             p.SetMaxCapacity(p.GetMaxCapacity() + RAISE);
             return p.WriteString(OVERSIZED);
         },
         [](Parcel& p) { EXPECT_EQ(p.ReadString(), OVERSIZED); }},
        {"max_not_lowered",
         [](Parcel& p) {
             bool lowered = p.SetMaxCapacity(1024);
             return !lowered && p.WriteInt32(1);
         },
         [](Parcel& p) { EXPECT_EQ(p.ReadInt32(), 1); }},
    };
    return cases;
}

TEST(ParcelGoldenTest, WritesTheRecordedResultSizeCapacityAndBytes)
{
    for (const PrimitiveCase& testCase : Cases()) {
        SCOPED_TRACE(testCase.name);
        ASSERT_EQ(Golden().count(testCase.name), 1u);
        const GoldenVector& expected = Golden().at(testCase.name);
        Parcel parcel;
        EXPECT_EQ(testCase.write(parcel), expected.ok);
        EXPECT_EQ(parcel.GetDataSize(), expected.size);
        EXPECT_EQ(parcel.GetWritePosition(), expected.size);
        EXPECT_EQ(parcel.GetMaxCapacity(), expected.maxCapacity);
        EXPECT_EQ(BytesOf(parcel), expected.bytes);
    }
}

TEST(ParcelGoldenTest, ReadsEveryValueBackFromTheRecordedBytes)
{
    for (const PrimitiveCase& testCase : Cases()) {
        SCOPED_TRACE(testCase.name);
        ASSERT_EQ(Golden().count(testCase.name), 1u);
        const GoldenVector& recorded = Golden().at(testCase.name);
        Parcel parcel;
        LoadBytes(parcel, recorded.bytes);
        ASSERT_EQ(parcel.GetDataSize(), recorded.bytes.size());
        testCase.readBack(parcel);
        if (recorded.ok) {
            EXPECT_EQ(parcel.GetReadableBytes(), 0u);
        }
    }
}

} // namespace
} // namespace OHOS
