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

// What a parcel refuses and what a refusal leaves behind: short and malformed reads, writes at the limit (all or
// nothing, except a string's length word), and a limit that only rises.
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

TEST(ParcelRulesTest, ReadsRefuseShortOrMalformedDataAndSayWhereTheyLeaveThePosition)
{
    const struct {
        const char* name;
        std::string hex;
        std::function<bool(Parcel&)> read;
        size_t position;
    } cases[] = {
        {"int32 from three bytes", "010203", [](Parcel& p) { return p.ReadInt32() != 0; }, 0},
        {"int64 from one word", "01020304", [](Parcel& p) { return p.ReadInt64() != 0; }, 0},
        {"bool from nothing", "", [](Parcel& p) { return p.ReadBool(); }, 0},
        {"string: half a length word", "0100", [](Parcel& p) { return !p.ReadString().empty(); }, 0},
        {"string: the null marker is left behind", "ffffffff", [](Parcel& p) { return !p.ReadString().empty(); }, 4},
        {"string: the most negative length is left behind", "00000080",
         [](Parcel& p) { return !p.ReadString().empty(); }, 4},
        {"string: a length beyond the data is rewound", "0500000061620000",
         [](Parcel& p) { return !p.ReadString().empty(); }, 0},
        {"string: length INT32_MAX is rewound", "ffffff7f61620000", [](Parcel& p) { return !p.ReadString().empty(); },
         0},
        {"string: no room for the terminator is rewound", "0400000061626364",
         [](Parcel& p) { return !p.ReadString().empty(); }, 0},
        {"string: a non-zero terminator is rewound", "0200000061626300",
         [](Parcel& p) { return !p.ReadString().empty(); }, 0},
        {"string16: half a terminator is rewound", "020000006100620000",
         [](Parcel& p) { return !p.ReadString16().empty(); }, 0},
        {"string16: a non-zero terminator is rewound", "020000006100620063000000",
         [](Parcel& p) { return !p.ReadString16().empty(); }, 0},
        {"buffer beyond the data", "61626364", [](Parcel& p) { return p.ReadBuffer(5) != nullptr; }, 0},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.name);
        Parcel parcel;
        LoadBytes(parcel, BytesFromHex(c.hex));
        EXPECT_FALSE(c.read(parcel));
        EXPECT_EQ(parcel.GetReadPosition(), c.position);
    }
}

TEST(ParcelRulesTest, WritesAtTheLimitAreAllOrNothingExceptAStringsLengthWord)
{
    const struct {
        const char* name;
        size_t room;
        std::function<bool(Parcel&)> write;
        bool ok;
        size_t added;
    } cases[] = {
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
        FillLeaving(parcel, c.room);
        const size_t before = parcel.GetDataSize();
        EXPECT_EQ(c.write(parcel), c.ok);
        EXPECT_EQ(parcel.GetDataSize(), before + c.added);
        EXPECT_EQ(parcel.GetWritePosition(), before + c.added);
        // A failed write does not block a later one that fits.
        if (!c.ok && c.room - c.added >= 4) {
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
