// Reads of numbers, strings, buffers and C strings: what each consumes, the values taken from a word, and what a
// failed read leaves behind (position, target).
#include <gtest/gtest.h>

#include <cstdint>
#include <cstring>
#include <functional>
#include <string>
#include <vector>

#include "golden_vectors.h"
#include "parcel.h"
#include "parcel_bytes.h"

namespace OHOS {
namespace {

using Zelkon::BytesFromHex;

struct NumberReader {
    std::string name;
    size_t width;
    // Reads into a target preset to a marker; `untouched` tells whether the marker is still there.
    std::function<bool(Parcel&, bool& untouched)> readInto;
    // The value-returning form; true when it returned zero.
    std::function<bool(Parcel&)> readsZero;
};

template <typename T>
NumberReader Reader(const std::string& name, size_t width, T marker, bool (Parcel::*readInto)(T&), T (Parcel::*read)())
{
    return {name, width,
            [marker, readInto](Parcel& parcel, bool& untouched) {
                T value = marker;
                bool ok = (parcel.*readInto)(value);
                untouched = std::memcmp(&value, &marker, sizeof(T)) == 0;
                return ok;
            },
            [read](Parcel& parcel) { return (parcel.*read)() == T{}; }};
}

const std::vector<NumberReader>& Readers()
{
    static const std::vector<NumberReader> readers = {
        Reader<bool>("bool", 4, true, &Parcel::ReadBool, &Parcel::ReadBool),
        Reader<int8_t>("int8", 4, 0x5A, &Parcel::ReadInt8, &Parcel::ReadInt8),
        Reader<int16_t>("int16", 4, 0x5A5A, &Parcel::ReadInt16, &Parcel::ReadInt16),
        Reader<uint8_t>("uint8", 4, 0x5A, &Parcel::ReadUint8, &Parcel::ReadUint8),
        Reader<uint16_t>("uint16", 4, 0x5A5A, &Parcel::ReadUint16, &Parcel::ReadUint16),
        Reader<int32_t>("int32", 4, 0x5A5A5A5A, &Parcel::ReadInt32, &Parcel::ReadInt32),
        Reader<uint32_t>("uint32", 4, 0x5A5A5A5Au, &Parcel::ReadUint32, &Parcel::ReadUint32),
        Reader<float>("float", 4, 1.5f, &Parcel::ReadFloat, &Parcel::ReadFloat),
        Reader<int64_t>("int64", 8, 0x5A5A5A5A5A5A5A5ALL, &Parcel::ReadInt64, &Parcel::ReadInt64),
        Reader<uint64_t>("uint64", 8, 0x5A5A5A5A5A5A5A5AULL, &Parcel::ReadUint64, &Parcel::ReadUint64),
        Reader<double>("double", 8, 1.5, &Parcel::ReadDouble, &Parcel::ReadDouble),
    };
    return readers;
}

TEST(ParcelReadTest, NumberReadsFailOnShortDataWithoutMovingOrWritingTheTarget)
{
    for (const NumberReader& reader : Readers()) {
        for (size_t available = 0; available < reader.width; ++available) {
            SCOPED_TRACE(reader.name + " with " + std::to_string(available) + " bytes");
            Parcel parcel;
            LoadBytes(parcel, std::vector<uint8_t>(available, 0xAB));
            bool untouched = false;
            EXPECT_FALSE(reader.readInto(parcel, untouched));
            EXPECT_TRUE(untouched);
            EXPECT_EQ(parcel.GetReadPosition(), 0u);
            EXPECT_TRUE(reader.readsZero(parcel));
            EXPECT_EQ(parcel.GetReadPosition(), 0u);
        }
    }
}

TEST(ParcelReadTest, EachNumberReadConsumesItsWholeWordOrTwo)
{
    for (const NumberReader& reader : Readers()) {
        SCOPED_TRACE(reader.name);
        Parcel parcel;
        LoadBytes(parcel, std::vector<uint8_t>(reader.width + 4, 0));
        bool untouched = true;
        EXPECT_TRUE(reader.readInto(parcel, untouched));
        EXPECT_FALSE(untouched);
        EXPECT_EQ(parcel.GetReadPosition(), reader.width);
    }
}

TEST(ParcelReadTest, SmallNumbersAreTheLowBitsOfTheWord)
{
    const struct {
        std::string hex;
        std::string reader;
        std::function<int64_t(Parcel&)> read;
        int64_t expected;
    } cases[] = {
        {"81f63412", "int8", [](Parcel& p) { return p.ReadInt8(); }, -127},
        {"81f63412", "uint8", [](Parcel& p) { return p.ReadUint8(); }, 0x81},
        {"81f63412", "int16", [](Parcel& p) { return p.ReadInt16(); }, -2431},
        {"81f63412", "uint16", [](Parcel& p) { return p.ReadUint16(); }, 0xF681},
        {"ffffffff", "uint32", [](Parcel& p) { return p.ReadUint32(); }, 0xFFFFFFFFLL},
        {"ffffffff", "int32", [](Parcel& p) { return p.ReadInt32(); }, -1},
        {"00010000", "bool of a word with a zero low byte", [](Parcel& p) { return p.ReadBool(); }, 1},
        {"02000000", "bool of 2", [](Parcel& p) { return p.ReadBool(); }, 1},
        {"00000000", "bool of 0", [](Parcel& p) { return p.ReadBool(); }, 0},
        {"01000000feffffffffffffff", "int64 right after one word, unaligned",
         [](Parcel& p) {
             p.ReadInt32();
             return p.ReadInt64();
         },
         -2},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.hex + " as " + c.reader);
        Parcel parcel;
        LoadBytes(parcel, BytesFromHex(c.hex));
        EXPECT_EQ(c.read(parcel), c.expected);
    }
}

struct StringReadCase {
    std::string name;
    std::string hex;
    bool ok;
    size_t position;
};

TEST(ParcelReadTest, StringReadsRefuseBadLengthsAndEmptyTheTarget)
{
    const StringReadCase cases[] = {
        {"nothing to read", "", false, 0},
        {"half a length word", "0100", false, 0},
        {"the null marker is left behind", "ffffffff", false, 4},
        {"the most negative length is left behind", "00000080", false, 4},
        {"length beyond the data is rewound", "0500000061620000", false, 0},
        {"length INT32_MAX is rewound", "ffffff7f61620000", false, 0},
        {"no room for the terminator is rewound", "0400000061626364", false, 0},
        {"a non-zero terminator is rewound", "0200000061626300", false, 0},
        {"exactly terminated", "0200000061620000", true, 8},
        {"pad bytes are not checked", "02000000616200ff", true, 8},
        {"missing pad ends at the data end", "02000000616200", true, 7},
    };
    for (const StringReadCase& c : cases) {
        SCOPED_TRACE(c.name);
        Parcel parcel;
        LoadBytes(parcel, BytesFromHex(c.hex));
        std::string value = "before";
        EXPECT_EQ(parcel.ReadString(value), c.ok);
        EXPECT_EQ(value, c.ok ? "ab" : "");
        EXPECT_EQ(parcel.GetReadPosition(), c.position);
        ASSERT_TRUE(parcel.RewindRead(0));
        EXPECT_EQ(parcel.ReadString(), c.ok ? "ab" : "");
    }
}

TEST(ParcelReadTest, String16ReadsRefuseBadLengthsAndEmptyTheTarget)
{
    const StringReadCase cases[] = {
        {"half a length word", "0200", false, 0},
        {"the null marker is left behind", "ffffffff", false, 4},
        {"units beyond the data are rewound", "0300000061006200", false, 0},
        {"no room for the terminator is rewound", "0200000061006200", false, 0},
        {"half a terminator is rewound", "020000006100620000", false, 0},
        {"a non-zero terminator is rewound", "020000006100620063000000", false, 0},
        {"length INT32_MAX is rewound", "ffffff7f6100620000000000", false, 0},
        {"exactly terminated", "02000000610062000000ffff", true, 12},
        {"missing pad ends at the data end", "02000000610062000000", true, 10},
    };
    for (const StringReadCase& c : cases) {
        SCOPED_TRACE(c.name);
        Parcel parcel;
        LoadBytes(parcel, BytesFromHex(c.hex));
        std::u16string value = u"before";
        EXPECT_EQ(parcel.ReadString16(value), c.ok);
        EXPECT_EQ(value, c.ok ? u"ab" : u"");
        EXPECT_EQ(parcel.GetReadPosition(), c.position);
    }
}

TEST(ParcelReadTest, StringsCarryEmbeddedZeros)
{
    const std::string text("a\0b", 3);
    const std::u16string text16(u"a\0b", 3);
    Parcel parcel;
    ASSERT_TRUE(parcel.WriteString(text));
    ASSERT_TRUE(parcel.WriteString16(text16));
    EXPECT_EQ(parcel.ReadString(), text);
    EXPECT_EQ(parcel.ReadString16(), text16);
    EXPECT_EQ(parcel.GetReadableBytes(), 0u);
}

TEST(ParcelReadTest, BuffersAreReadInPlaceAndUnpaddedReadsSkipThePad)
{
    Parcel parcel;
    ASSERT_TRUE(parcel.WriteBuffer("abcde", 5));
    ASSERT_EQ(parcel.GetDataSize(), 8u);

    EXPECT_EQ(parcel.ReadBuffer(9), nullptr);
    EXPECT_EQ(parcel.GetReadPosition(), 0u);
    const uint8_t* plain = parcel.ReadBuffer(5);
    ASSERT_NE(plain, nullptr);
    EXPECT_EQ(std::string(reinterpret_cast<const char*>(plain), 5), "abcde");
    EXPECT_EQ(parcel.GetReadPosition(), 5u);

    ASSERT_TRUE(parcel.RewindRead(0));
    EXPECT_EQ(parcel.ReadUnpadBuffer(5), plain);
    EXPECT_EQ(parcel.GetReadPosition(), 8u);
    EXPECT_EQ(parcel.ReadUnpadBuffer(1), nullptr);
    EXPECT_EQ(parcel.GetReadPosition(), 8u);

    ASSERT_TRUE(parcel.RewindWrite(5));
    ASSERT_TRUE(parcel.RewindRead(0));
    EXPECT_NE(parcel.ReadUnpadBuffer(5), nullptr);
    EXPECT_EQ(parcel.GetReadPosition(), 5u);
}

} // namespace
} // namespace OHOS
