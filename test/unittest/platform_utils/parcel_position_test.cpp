// Moving the read and write positions and cutting the data: the edge values of RewindRead, RewindWrite, SkipBytes
// and SetDataSize.
#include <gtest/gtest.h>

#include <cstdint>
#include <string>
#include <vector>

#include "golden_vectors.h"
#include "parcel.h"
#include "parcel_bytes.h"

namespace OHOS {
namespace {

using Zelkon::BytesFromHex;

// Three words 1, 2, 3 with the read position after the first.
void FillThreeWords(Parcel& parcel)
{
    ASSERT_TRUE(parcel.WriteInt32(1) && parcel.WriteInt32(2) && parcel.WriteInt32(3));
    ASSERT_EQ(parcel.ReadInt32(), 1);
}

TEST(ParcelPositionTest, RewindReadStaysWithinTheData)
{
    const struct {
        size_t position;
        bool ok;
        size_t after;
    } cases[] = {{0, true, 0}, {8, true, 8}, {12, true, 12}, {13, false, 4}, {SIZE_MAX, false, 4}};
    for (const auto& c : cases) {
        SCOPED_TRACE(c.position);
        Parcel parcel;
        FillThreeWords(parcel);
        EXPECT_EQ(parcel.RewindRead(c.position), c.ok);
        EXPECT_EQ(parcel.GetReadPosition(), c.after);
        EXPECT_EQ(parcel.GetDataSize(), 12u);
    }
}

TEST(ParcelPositionTest, RewindReadAllowsReadingAgain)
{
    Parcel parcel;
    FillThreeWords(parcel);
    EXPECT_EQ(parcel.ReadInt32(), 2);
    ASSERT_TRUE(parcel.RewindRead(4));
    EXPECT_EQ(parcel.ReadInt32(), 2);
}

TEST(ParcelPositionTest, RewindWriteCutsTheDataAndPullsTheReadPositionBack)
{
    const struct {
        size_t offset;
        bool ok;
        size_t size;
        size_t readPosition;
    } cases[] = {{0, true, 0, 0}, {2, true, 2, 2}, {8, true, 8, 4}, {12, true, 12, 4}, {13, false, 12, 4}};
    for (const auto& c : cases) {
        SCOPED_TRACE(c.offset);
        Parcel parcel;
        FillThreeWords(parcel);
        EXPECT_EQ(parcel.RewindWrite(c.offset), c.ok);
        EXPECT_EQ(parcel.GetDataSize(), c.size);
        EXPECT_EQ(parcel.GetWritePosition(), c.size);
        EXPECT_EQ(parcel.GetReadPosition(), c.readPosition);
        EXPECT_EQ(parcel.GetReadableBytes(), c.size - c.readPosition);
    }
}

TEST(ParcelPositionTest, WritesAfterRewindWriteReplaceTheCutData)
{
    Parcel parcel;
    FillThreeWords(parcel);
    ASSERT_TRUE(parcel.RewindWrite(4));
    ASSERT_TRUE(parcel.WriteInt32(9));
    EXPECT_EQ(BytesOf(parcel), BytesFromHex("0100000009000000"));
    EXPECT_EQ(parcel.ReadInt32(), 9);
    EXPECT_EQ(parcel.ReadInt32(), 0);
}

TEST(ParcelPositionTest, SkipBytesSkipsPaddedLengthsOrGoesToTheEnd)
{
    const struct {
        std::string name;
        size_t dataSize;
        size_t skip;
        size_t after;
    } cases[] = {
        {"nothing", 16, 0, 4},
        {"one byte takes its word", 16, 1, 8},
        {"one word", 16, 4, 8},
        {"five bytes take two words", 16, 5, 12},
        {"all that is left", 16, 12, 16},
        {"past the end", 16, 13, 16},
        {"far past the end", 16, 1000, 16},
        {"pad past an unaligned end", 14, 9, 14},
        {"largest size", 16, SIZE_MAX, 16},
        {"largest size less one", 16, SIZE_MAX - 1, 16},
        {"largest size less two", 16, SIZE_MAX - 2, 16},
        {"largest size less three", 16, SIZE_MAX - 3, 16},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.name);
        Parcel parcel;
        LoadBytes(parcel, std::vector<uint8_t>(c.dataSize, 0x77));
        ASSERT_TRUE(parcel.RewindRead(4));
        parcel.SkipBytes(c.skip);
        EXPECT_EQ(parcel.GetReadPosition(), c.after);
    }
}

TEST(ParcelPositionTest, SetDataSizeStaysWithinTheCapacityAndLimitsReads)
{
    const struct {
        size_t size;
        bool ok;
    } cases[] = {{0, true}, {4, true}, {8, true}, {64, true}, {65, false}, {SIZE_MAX, false}};
    for (const auto& c : cases) {
        SCOPED_TRACE(c.size);
        Parcel parcel;
        ASSERT_TRUE(parcel.WriteInt32(5) && parcel.WriteInt32(6));
        ASSERT_EQ(parcel.GetDataCapacity(), 64u);
        EXPECT_EQ(parcel.SetDataSize(c.size), c.ok);
        EXPECT_EQ(parcel.GetDataSize(), c.ok ? c.size : 8u);
        EXPECT_EQ(parcel.GetReadableBytes(), parcel.GetDataSize());
    }
}

TEST(ParcelPositionTest, ACutDataSizeEndsTheReadableData)
{
    Parcel parcel;
    ASSERT_TRUE(parcel.WriteInt32(5) && parcel.WriteInt32(6));
    ASSERT_TRUE(parcel.SetDataSize(4));
    EXPECT_EQ(parcel.ReadInt64(), 0);
    EXPECT_EQ(parcel.ReadInt32(), 5);
    EXPECT_EQ(parcel.ReadInt32(), 0);
    EXPECT_FALSE(parcel.RewindRead(8));
}

} // namespace
} // namespace OHOS
