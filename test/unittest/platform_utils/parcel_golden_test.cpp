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

// Primitive writes against the bytes, results and limits that the device's parcel produced for the same calls (the
// records' golden tests read recorded bytes back through the same primitives).
#include <gtest/gtest.h>

#include <climits>
#include <cstdint>
#include <functional>
#include <string>

#include "golden_vectors.h"
#include "parcel.h"
#include "parcel_bytes.h"

namespace OHOS {
namespace {

TEST(ParcelGoldenTest, WritesTheRecordedResultSizeLimitAndBytes)
{
    const std::string oversized(210 * 1024, 'x');
    const struct {
        std::string name;
        std::function<bool(Parcel&)> write;
    } cases[] = {
        {"int32_five", [](Parcel& p) { return p.WriteInt32(5); }},
        {"int32_extremes",
         [](Parcel& p) { return p.WriteInt32(INT32_MIN) && p.WriteInt32(INT32_MAX) && p.WriteInt32(-1); }},
        {"uint32_max", [](Parcel& p) { return p.WriteUint32(0xFFFFFFFFu) && p.WriteUint32(0x80000001u); }},
        {"int64_values",
         [](Parcel& p) { return p.WriteInt64(-2) && p.WriteInt64(INT64_MAX) && p.WriteInt64(0x0102030405060708LL); }},
        {"bools", [](Parcel& p) { return p.WriteBool(true) && p.WriteBool(false); }},
        {"int8_values", [](Parcel& p) { return p.WriteInt8(-1) && p.WriteInt8(127) && p.WriteInt8(0); }},
        {"string_empty", [](Parcel& p) { return p.WriteString(""); }},
        {"string_lengths_1_to_9",
         [](Parcel& p) {
             bool ok = true;
             for (const char* text :
                  {"a", "ab", "abc", "abcd", "abcde", "abcdef", "abcdefg", "abcdefgh", "abcdefghi"}) {
                 ok = ok && p.WriteString(text);
             }
             return ok;
         }},
        {"string_utf8", [](Parcel& p) { return p.WriteString("\xe8\xae\xbe\xe5\xa4\x87 caf\xc3\xa9"); }},
        {"string_1000", [](Parcel& p) { return p.WriteString(std::string(1000, 'q')); }},
        {"string16_token", [](Parcel& p) { return p.WriteString16(u"ohos.Zelkon.ZelkonService"); }},
        {"string16_odd", [](Parcel& p) { return p.WriteString16(u"abc"); }},
        {"mixed_sequence",
         [](Parcel& p) {
             return p.WriteInt32(7) && p.WriteString("dev-01") && p.WriteBool(true) && p.WriteInt64(1700000000123LL) &&
                    p.WriteUint32(3u);
         }},
        {"over_default_max", [&oversized](Parcel& p) { return p.WriteString(oversized); }},
        {"raised_max",
         [&oversized](Parcel& p) {
             p.SetMaxCapacity(p.GetMaxCapacity() + 16 * 1024);
             return p.WriteString(oversized);
         }},
        {"max_not_lowered", [](Parcel& p) { return !p.SetMaxCapacity(1024) && p.WriteInt32(1); }},
    };
    const auto golden = Zelkon::LoadGoldenVectors();
    for (const auto& c : cases) {
        SCOPED_TRACE(c.name);
        ASSERT_EQ(golden.count(c.name), 1u);
        const Zelkon::GoldenVector& expected = golden.at(c.name);
        Parcel parcel;
        EXPECT_EQ(c.write(parcel), expected.ok);
        EXPECT_EQ(parcel.GetDataSize(), expected.size);
        EXPECT_EQ(parcel.GetWritePosition(), expected.size);
        EXPECT_EQ(parcel.GetMaxCapacity(), expected.maxCapacity);
        EXPECT_EQ(BytesOf(parcel), expected.bytes);
    }
}

} // namespace
} // namespace OHOS
