// Writes: how values are widened to words, what fits under the maximum capacity, how the maximum is raised and how
// the buffer grows.
#include <gtest/gtest.h>

#include <cstdint>
#include <functional>
#include <string>
#include <type_traits>
#include <vector>

#include "golden_vectors.h"
#include "parcel.h"
#include "parcel_bytes.h"

namespace OHOS {
namespace {

using Zelkon::BytesFromHex;

constexpr size_t DEFAULT_MAX = 204800;

static_assert(!std::is_copy_constructible_v<Parcel> && !std::is_copy_assignable_v<Parcel>);
static_assert(!std::is_move_constructible_v<Parcel> && !std::is_move_assignable_v<Parcel>);

struct WriteCase {
    std::string name;
    std::function<bool(Parcel&)> write;
    std::string hex;
};

TEST(ParcelWriteTest, ValuesAreWidenedToWholeWords)
{
    const WriteCase cases[] = {
        {"int8 sign-extended", [](Parcel& p) { return p.WriteInt8(-128); }, "80ffffff"},
        {"int16 sign-extended", [](Parcel& p) { return p.WriteInt16(-2); }, "feffffff"},
        {"uint8 zero-extended", [](Parcel& p) { return p.WriteUint8(0xFF); }, "ff000000"},
        {"uint16 zero-extended", [](Parcel& p) { return p.WriteUint16(0xFFFF); }, "ffff0000"},
        {"float raw", [](Parcel& p) { return p.WriteFloat(1.0f); }, "0000803f"},
        {"double raw", [](Parcel& p) { return p.WriteDouble(1.0); }, "000000000000f03f"},
        {"uint64 raw", [](Parcel& p) { return p.WriteUint64(0x8000000000000001ULL); }, "0100000000000080"},
        {"pointer in eight bytes", [](Parcel& p) { return p.WritePointer(0x1234); }, "3412000000000000"},
        {"int64 right after one word", [](Parcel& p) { return p.WriteInt32(1) && p.WriteInt64(-2); },
         "01000000feffffffffffffff"},
        {"string16 of one unit", [](Parcel& p) { return p.WriteString16(u"a"); }, "0100000061000000"},
        {"empty string16", [](Parcel& p) { return p.WriteString16(u""); }, "0000000000000000"},
        {"buffer padded with zeros", [](Parcel& p) { return p.WriteBuffer("abcde", 5); }, "6162636465000000"},
        {"unpadded buffer padded too", [](Parcel& p) { return p.WriteUnpadBuffer("ab", 2); }, "61620000"},
        {"C string without a length word", [](Parcel& p) { return p.WriteCString("abcd"); }, "6162636400000000"},
    };
    for (const WriteCase& c : cases) {
        SCOPED_TRACE(c.name);
        Parcel parcel;
        EXPECT_TRUE(c.write(parcel));
        EXPECT_EQ(BytesOf(parcel), BytesFromHex(c.hex));
    }
}

TEST(ParcelWriteTest, RefusedBuffersWriteNothing)
{
    const char data[8] = "abcdefg";
    const struct {
        std::string name;
        const void* data;
        size_t size;
    } cases[] = {
        {"null data", nullptr, 4},
        {"zero size", data, 0},
        {"one byte above the maximum", data, DEFAULT_MAX + 1},
        {"largest size", data, SIZE_MAX},
        {"largest size less one", data, SIZE_MAX - 1},
        {"largest size less two", data, SIZE_MAX - 2},
        {"largest size less three", data, SIZE_MAX - 3},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.name);
        Parcel parcel;
        ASSERT_TRUE(parcel.WriteInt32(1));
        EXPECT_FALSE(parcel.WriteBuffer(c.data, c.size));
        EXPECT_FALSE(parcel.WriteUnpadBuffer(c.data, c.size));
        EXPECT_EQ(parcel.GetDataSize(), 4u);
        EXPECT_EQ(parcel.GetWritePosition(), 4u);
    }
    Parcel parcel;
    EXPECT_FALSE(parcel.WriteCString(nullptr));
    EXPECT_EQ(parcel.GetDataSize(), 0u);
}

// Fills the parcel with zero bytes so that exactly `room` bytes still fit under its maximum.
void FillLeaving(Parcel& parcel, size_t room)
{
    const std::vector<uint8_t> zeros(parcel.GetMaxCapacity() - room, 0);
    ASSERT_TRUE(parcel.WriteBuffer(zeros.data(), zeros.size()));
}

TEST(ParcelWriteTest, WritesAtTheMaximumAreAllOrNothingExceptTheStringLengthWord)
{
    const struct {
        std::string name;
        size_t room;
        std::function<bool(Parcel&)> write;
        bool ok;
        size_t added;
    } cases[] = {
        {"int32 in the last word", 4, [](Parcel& p) { return p.WriteInt32(1); }, true, 4},
        {"bool with no room", 0, [](Parcel& p) { return p.WriteBool(true); }, false, 0},
        {"int64 in the last two words", 8, [](Parcel& p) { return p.WriteInt64(1); }, true, 8},
        {"int64 with one word left", 4, [](Parcel& p) { return p.WriteInt64(1); }, false, 0},
        {"double with one word left", 4, [](Parcel& p) { return p.WriteDouble(1); }, false, 0},
        {"string filling the room", 8, [](Parcel& p) { return p.WriteString("abc"); }, true, 8},
        {"string body beyond: its length word stays", 4, [](Parcel& p) { return p.WriteString("abc"); }, false, 4},
        {"string pad beyond: its length word stays", 8, [](Parcel& p) { return p.WriteString("abcd"); }, false, 4},
        {"string with no room for its length", 0, [](Parcel& p) { return p.WriteString(""); }, false, 0},
        {"string16 filling the room", 8, [](Parcel& p) { return p.WriteString16(u"a"); }, true, 8},
        {"string16 body beyond: its length word stays", 8, [](Parcel& p) { return p.WriteString16(u"ab"); }, false, 4},
        {"buffer pad beyond", 4, [](Parcel& p) { return p.WriteBuffer("abcde", 5); }, false, 0},
        {"C string filling the room", 4, [](Parcel& p) { return p.WriteCString("abc"); }, true, 4},
        {"C string terminator beyond", 4, [](Parcel& p) { return p.WriteCString("abcd"); }, false, 0},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.name);
        Parcel parcel;
        FillLeaving(parcel, c.room);
        const size_t before = parcel.GetDataSize();
        EXPECT_EQ(c.write(parcel), c.ok);
        EXPECT_EQ(parcel.GetDataSize(), before + c.added);
        EXPECT_EQ(parcel.GetWritePosition(), before + c.added);
        EXPECT_LE(parcel.GetDataCapacity(), DEFAULT_MAX);
    }
}

TEST(ParcelWriteTest, AFailedWriteDoesNotBlockLaterWritesThatFit)
{
    Parcel parcel;
    FillLeaving(parcel, 4);
    EXPECT_FALSE(parcel.WriteInt64(1));
    EXPECT_TRUE(parcel.WriteInt32(0x11223344));
    ASSERT_TRUE(parcel.RewindRead(DEFAULT_MAX - 4));
    EXPECT_EQ(parcel.ReadInt32(), 0x11223344);
}

TEST(ParcelWriteTest, TheMaximumOnlyRises)
{
    const struct {
        std::string name;
        std::vector<size_t> requests;
        std::vector<bool> results;
        size_t finalMax;
    } cases[] = {
        {"equal to the default", {DEFAULT_MAX}, {false}, DEFAULT_MAX},
        {"below the default", {1024}, {false}, DEFAULT_MAX},
        {"zero", {0}, {false}, DEFAULT_MAX},
        {"one above the default", {DEFAULT_MAX + 1}, {true}, DEFAULT_MAX + 1},
        {"raised then lowered", {300000, 250000}, {true, false}, 300000},
        {"raised then repeated", {300000, 300000}, {true, false}, 300000},
        {"raised twice", {300000, 300001}, {true, true}, 300001},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.name);
        Parcel parcel;
        EXPECT_EQ(parcel.GetMaxCapacity(), DEFAULT_MAX);
        for (size_t i = 0; i < c.requests.size(); ++i) {
            EXPECT_EQ(parcel.SetMaxCapacity(c.requests[i]), c.results[i]) << "request " << i;
        }
        EXPECT_EQ(parcel.GetMaxCapacity(), c.finalMax);
    }
}

TEST(ParcelWriteTest, ARaisedMaximumTakesMoreDataAndKeepsItWhenALowerOneIsAsked)
{
    constexpr size_t RAISED = 300000;
    Parcel parcel;
    ASSERT_TRUE(parcel.SetMaxCapacity(RAISED));
    FillLeaving(parcel, 4);
    ASSERT_TRUE(parcel.WriteInt32(42));
    EXPECT_FALSE(parcel.WriteInt32(43));

    EXPECT_FALSE(parcel.SetMaxCapacity(1000));
    EXPECT_EQ(parcel.GetMaxCapacity(), RAISED);
    EXPECT_EQ(parcel.GetDataSize(), RAISED);
    ASSERT_TRUE(parcel.RewindRead(RAISED - 4));
    EXPECT_EQ(parcel.ReadInt32(), 42);
}

TEST(ParcelWriteTest, CapacityGrowsByDoublingThenInPagesUpToTheMaximum)
{
    const struct {
        size_t written;
        size_t capacity;
    } cases[] = {
        {4, 64},
        {64, 64},
        {68, 128},
        {2048, 2048},
        {2052, 4096},
        {4096, 4096},
        {4100, 8192},
        {8192, 12288},
        {200000, 200704},
        {204796, DEFAULT_MAX},
        {DEFAULT_MAX, DEFAULT_MAX},
    };
    Parcel fresh;
    EXPECT_EQ(fresh.GetDataCapacity(), 0u);
    for (const auto& c : cases) {
        SCOPED_TRACE(c.written);
        Parcel parcel;
        const std::vector<uint8_t> bytes(c.written, 0x33);
        ASSERT_TRUE(parcel.WriteBuffer(bytes.data(), bytes.size()));
        EXPECT_EQ(parcel.GetDataCapacity(), c.capacity);
        EXPECT_EQ(parcel.GetWritableBytes(), c.capacity - c.written);
    }
}

} // namespace
} // namespace OHOS
