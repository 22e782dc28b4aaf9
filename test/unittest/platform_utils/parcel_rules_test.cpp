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

// What a parcel refuses and what a refusal leaves behind: short and malformed reads, reads over object records,
// writes at the limit (all or nothing, except a string's length word), and a limit that only rises; where each call
// leaves the read position, and how the buffer grows.
#include <gtest/gtest.h>

#include <cstdint>
#include <functional>
#include <string>
#include <vector>

#include "golden_vectors.h"
#include "parcel.h"
#include "parcel_bytes.h"

namespace OHOS {
namespace {

using Zelkon::BytesFromHex;

constexpr size_t DEFAULT_MAX = 204800;
// A read position at the parcel's capacity, wherever that is.
constexpr size_t AT_CAPACITY = SIZE_MAX;

// A parcel whose object record offsets a test writes, as the ipc's parcel does.
class RecordingParcel : public Parcel {
public:
    using Parcel::EnsureObjectsCapacity;
    using Parcel::WriteObjectOffset;
};

bool ReadsList(Parcel& parcel, const std::vector<std::u16string>& expected)
{
    std::vector<std::u16string> values{u"left over"};
    return parcel.ReadString16Vector(&values) && values == expected;
}

// One call on a parcel made from `given` (its bytes, the read position to start from, or the room left): whether it
// succeeds, and where it leaves the parcel (a read, its read position; a write, the bytes it added).
template <typename Given>
struct CallCase {
    const char* name;
    Given given;
    std::function<bool(Parcel&)> call;
    bool ok;
    size_t position;
};

// True when the parcel gave a text: every malformed one reads as empty.
bool ReadsString(Parcel& parcel)
{
    return !parcel.ReadString().empty();
}

bool ReadsString16(Parcel& parcel)
{
    return !parcel.ReadString16().empty();
}

TEST(ParcelRulesTest, ReadsSayWhetherTheyReadAndWhereTheyLeaveThePosition)
{
    const CallCase<std::string> cases[] = {
        {"int32 from three bytes", "010203", [](Parcel& p) { return p.ReadInt32() != 0; }, false, 0},
        {"int64 from one word", "01020304", [](Parcel& p) { return p.ReadInt64() != 0; }, false, 0},
        {"bool from nothing", "", [](Parcel& p) { return p.ReadBool(); }, false, 0},
        {"string: half a length word", "0100", ReadsString, false, 0},
        {"string: the null marker is left behind", "ffffffff", ReadsString, false, 4},
        {"string: the most negative length is left behind", "00000080", ReadsString, false, 4},
        {"string: length INT32_MAX is left behind", "ffffff7f61620000", ReadsString, false, 4},
        {"string16: length INT32_MAX is left behind", "ffffff7f61620000", ReadsString16, false, 4},
        {"string: a length beyond the data is rewound", "0500000061620000", ReadsString, false, 0},
        {"string: no room for the terminator is rewound", "0400000061626364", ReadsString, false, 0},
        {"string: a non-zero terminator is rewound", "0200000061626300", ReadsString, false, 0},
        {"string16: half a terminator is rewound", "020000006100620000", ReadsString16, false, 0},
        {"string16: a non-zero terminator is rewound", "020000006100620063000000", ReadsString16, false, 0},
        {"string without its padding ends at the capacity", "010000006100",
         [](Parcel& p) { return p.ReadString() == "a"; }, true, AT_CAPACITY},
        {"buffer beyond the data", "61626364", [](Parcel& p) { return p.ReadBuffer(5) != nullptr; }, false, 0},
        {"unpadded buffer of the last bytes ends at the capacity", "616263",
         [](Parcel& p) { return p.ReadUnpadBuffer(3) != nullptr; }, true, AT_CAPACITY},
        {"unpadded buffer followed by its padding", "61626300",
         [](Parcel& p) { return p.ReadUnpadBuffer(3) != nullptr; }, true, 4},
        {"skip within the data is not rounded up", "6162636465",
         [](Parcel& p) {
             p.SkipBytes(3);
             return true;
         },
         true, 3},
        {"skip past the end goes to the capacity", "61626364",
         [](Parcel& p) {
             p.SkipBytes(5);
             return p.GetReadableBytes() == 0;
         },
         true, AT_CAPACITY},
        {"string16 list: a text that fails is left empty", "020000000100000061000000050000006200",
         [](Parcel& p) {
             return ReadsList(p, {u"a", u""});
         },
         true, 12},
        {"string16 list: a count above the words but within the bytes", "0300000000000000",
         [](Parcel& p) {
             return ReadsList(p, {u"", u"", u""});
         },
         true, 4},
        {"string16 list: a count above the bytes", "0500000000000000", [](Parcel& p) { return ReadsList(p, {}); },
         false, 4},
        {"string16 list: no count is an empty list", "", [](Parcel& p) { return ReadsList(p, {}); }, true, 0},
        {"rewinding the writes leaves the read position", "0100000002000000",
         [](Parcel& p) { return p.ReadInt64() != 0 && p.RewindWrite(4) && p.GetDataSize() == 4; }, true, 8},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.name);
        Parcel parcel;
        LoadBytes(parcel, BytesFromHex(c.given));
        EXPECT_EQ(c.call(parcel), c.ok);
        EXPECT_EQ(parcel.GetReadPosition(), c.position == AT_CAPACITY ? parcel.GetDataCapacity() : c.position);
    }
}

// An int32 (7), a record at 4, an int32 (9) at 28. A plain read that would take a byte of the record fails and
// still moves past the bytes it refused; a buffer or a string stays or is rewound.
TEST(ParcelRulesTest, PlainReadsMayNotTakeAByteOfAnObjectRecord)
{
    const CallCase<size_t> cases[] = {
        {"int32 before it", 0, [](Parcel& p) { return p.ReadInt32() == 7; }, true, 4},
        {"int32 on it", 4, [](Parcel& p) { return p.ReadInt32() != 0; }, false, 8},
        {"int64 across its start", 0, [](Parcel& p) { return p.ReadInt64() != 0; }, false, 8},
        {"int32 on its last word", 24, [](Parcel& p) { return p.ReadInt32() != 0; }, false, 28},
        {"int32 after it", 28, [](Parcel& p) { return p.ReadInt32() == 9; }, true, 32},
        {"buffer across it", 0, [](Parcel& p) { return p.ReadBuffer(12) != nullptr; }, false, 0},
        {"empty buffer inside it", 8, [](Parcel& p) { return p.ReadBuffer(0) != nullptr; }, false, 8},
        {"string whose body runs into it", 0, ReadsString, false, 0},
        {"the record itself", 4, [](Parcel& p) { return p.CheckOffsets(); }, true, 4},
        {"no record here", 0, [](Parcel& p) { return p.CheckOffsets(); }, false, 0},
        {"a rewind into it drops it", 4,
         [](Parcel& p) { return p.RewindWrite(8) && p.GetOffsetsSize() == 0 && p.ReadInt32() == 0; }, true, 8},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.name);
        RecordingParcel parcel;
        ASSERT_TRUE(parcel.WriteInt32(7) && parcel.EnsureObjectsCapacity());
        const std::vector<uint8_t> record(24, 0);
        ASSERT_TRUE(parcel.WriteBuffer(record.data(), record.size()) && parcel.WriteObjectOffset(4));
        ASSERT_TRUE(parcel.WriteInt32(9) && parcel.RewindRead(c.given));
        EXPECT_EQ(c.call(parcel), c.ok);
        EXPECT_EQ(parcel.GetReadPosition(), c.position);
    }
}

TEST(ParcelRulesTest, AnObjectOffsetIsRecordedOnceWithinTheDataInTheRoomMadeForIt)
{
    RecordingParcel parcel;
    const std::vector<uint8_t> data(48, 0);
    ASSERT_TRUE(parcel.WriteBuffer(data.data(), data.size()));
    EXPECT_FALSE(parcel.WriteObjectOffset(0));
    ASSERT_TRUE(parcel.EnsureObjectsCapacity());
    EXPECT_TRUE(parcel.WriteObjectOffset(8));
    EXPECT_FALSE(parcel.WriteObjectOffset(8));
    EXPECT_FALSE(parcel.WriteObjectOffset(52));
    EXPECT_TRUE(parcel.WriteObjectOffset(16));
    EXPECT_TRUE(parcel.WriteObjectOffset(0));
    ASSERT_TRUE(parcel.EnsureObjectsCapacity());
    EXPECT_FALSE(parcel.WriteObjectOffset(16));
    ASSERT_EQ(parcel.GetOffsetsSize(), 3u);
    const auto* offsets = reinterpret_cast<const binder_size_t*>(static_cast<uintptr_t>(parcel.GetObjectOffsets()));
    EXPECT_EQ(std::vector<binder_size_t>(offsets, offsets + 3), (std::vector<binder_size_t>{8, 16, 0}));
    EXPECT_TRUE(parcel.RewindRead(0) && parcel.CheckOffsets());
    EXPECT_FALSE(parcel.RewindRead(4) && parcel.CheckOffsets());
}

// Doubling from 64 bytes up to 4 KiB, then steps of 4 KiB up to the maximum.
TEST(ParcelRulesTest, TheBufferGrowsByDoublingThenInStepsOf4KiB)
{
    const struct {
        const char* name;
        size_t written;
        size_t capacity;
    } cases[] = {
        {"one word", 4, 64},
        {"65 bytes", 68, 128},
        {"4 KiB", 4096, 4096},
        {"a word past 4 KiB", 4100, 8192},
        {"200,000 bytes", 200000, 200704},
        {"the maximum", DEFAULT_MAX, DEFAULT_MAX},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.name);
        Parcel words;
        Parcel buffer;
        const std::vector<uint8_t> bytes(c.written, 1);
        for (size_t i = 0; i < c.written / 4; ++i) {
            ASSERT_TRUE(words.WriteInt32(1));
        }
        ASSERT_TRUE(buffer.WriteBuffer(bytes.data(), bytes.size()));
        EXPECT_EQ(words.GetDataCapacity(), c.capacity);
        EXPECT_EQ(buffer.GetDataCapacity(), c.capacity);
    }
}

TEST(ParcelRulesTest, TheCapacityIsSetOnlyAboveTheDataAndAnInt64TakesTheNextTwoWords)
{
    Parcel parcel;
    ASSERT_TRUE(parcel.WriteInt32(1) && parcel.WriteInt64(0x0102030405060708LL));
    EXPECT_EQ(BytesOf(parcel), BytesFromHex("010000000807060504030201"));
    EXPECT_FALSE(parcel.SetDataCapacity(12));
    EXPECT_EQ(parcel.GetDataCapacity(), 64u);
    EXPECT_TRUE(parcel.SetDataCapacity(13));
    EXPECT_EQ(parcel.GetDataCapacity(), 13u);
}

TEST(ParcelRulesTest, WritesAtTheLimitAreAllOrNothingExceptAStringsLengthWord)
{
    const CallCase<size_t> cases[] = {
        {"int32 in the last word", 4, [](Parcel& p) { return p.WriteInt32(1); }, true, 4},
        {"bool with no room", 0, [](Parcel& p) { return p.WriteBool(true); }, false, 0},
        {"int64 with one word left", 4, [](Parcel& p) { return p.WriteInt64(1); }, false, 0},
        {"string filling the room", 8, [](Parcel& p) { return p.WriteString("abc"); }, true, 8},
        {"string body beyond: its length word stays", 4, [](Parcel& p) { return p.WriteString("abc"); }, false, 4},
        {"string pad beyond: its length word stays", 8, [](Parcel& p) { return p.WriteString("abcd"); }, false, 4},
        {"string with no room for its length", 0, [](Parcel& p) { return p.WriteString(""); }, false, 0},
        {"string16 body beyond: its length word stays", 8, [](Parcel& p) { return p.WriteString16(u"ab"); }, false, 4},
        {"buffer pad beyond", 4, [](Parcel& p) { return p.WriteBuffer("abcde", 5); }, false, 0},
        {"null buffer", 8, [](Parcel& p) { return p.WriteBuffer(nullptr, 4); }, false, 0},
        {"buffer of the largest size", 8, [](Parcel& p) { return p.WriteBuffer("abcd", SIZE_MAX - 1); }, false, 0},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.name);
        Parcel parcel;
        FillLeaving(parcel, c.given);
        const size_t before = parcel.GetDataSize();
        EXPECT_EQ(c.call(parcel), c.ok);
        EXPECT_EQ(parcel.GetDataSize(), before + c.position);
        EXPECT_EQ(parcel.GetWritePosition(), before + c.position);
        // A failed write does not block a later one that fits.
        if (!c.ok && c.given - c.position >= 4) {
            EXPECT_TRUE(parcel.WriteInt32(7));
        }
    }
}

TEST(ParcelRulesTest, TheLimitOnlyRisesAndARaisedLimitTakesMoreData)
{
    const struct {
        const char* name;
        std::vector<size_t> requests;
        std::vector<bool> results;
        size_t finalMax;
    } cases[] = {
        {"equal to the default", {DEFAULT_MAX}, {false}, DEFAULT_MAX},
        {"below the default", {1024}, {false}, DEFAULT_MAX},
        {"a word above the default", {DEFAULT_MAX + 4}, {true}, DEFAULT_MAX + 4},
        {"raised then lowered", {300000, 250000}, {true, false}, 300000},
        {"raised twice", {300000, 300004}, {true, true}, 300004},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.name);
        Parcel parcel;
        EXPECT_EQ(parcel.GetMaxCapacity(), DEFAULT_MAX);
        for (size_t i = 0; i < c.requests.size(); ++i) {
            EXPECT_EQ(parcel.SetMaxCapacity(c.requests[i]), c.results[i]) << "request " << i;
        }
        EXPECT_EQ(parcel.GetMaxCapacity(), c.finalMax);
        FillLeaving(parcel, 4);
        EXPECT_TRUE(parcel.WriteInt32(42));
        EXPECT_FALSE(parcel.WriteInt32(43));
        EXPECT_EQ(parcel.GetDataSize(), c.finalMax);
    }
}

} // namespace
} // namespace OHOS
