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

// Big strings: the size word and data block, the reader's bounds and refusals, the shared-memory path, and the
// lines of both sides.
#include <gtest/gtest.h>

#include "captured_log.h"
#include "message_parcel.h"
#include "parcel_bytes.h"
#include "parcel_util.h"

namespace OHOS {
namespace Zelkon {
namespace {

constexpr uint32_t MAX_SIZE = 5242880;
const std::string UNTOUCHED = "left as it was";
const char* const WRITER = "ShareService";
const char* const READER = "ShareManagerService";

bool Read(MessageParcel& parcel, std::string& out)
{
    return ParcelUtil::ReadBigString(parcel, out, MAX_SIZE, 1);
}

TEST(ParcelUtilTest, WritesTheSizeWordThenTheTextWithItsZeroAndSaysHowLong)
{
    const struct {
        std::string text;
        std::vector<uint8_t> bytes;
        const char* line;
    } cases[] = {
        {"", {1, 0, 0, 0}, "Empty message."},
        {"ab", {3, 0, 0, 0, 3, 0, 0, 0, 'a', 'b', 0, 0}, "Send message size:2."},
    };
    for (const auto& c : cases) {
        MessageParcel parcel;
        CapturedLog log;
        ASSERT_TRUE(ParcelUtil::WriteBigString(parcel, c.text));
        EXPECT_EQ(BytesOf(parcel), c.bytes);
        EXPECT_EQ(log.Count(WRITER, c.line, LOG_INFO), 1u);
        EXPECT_EQ(log.Lines().size(), 1u);
    }
}

TEST(ParcelUtilTest, RoundTripsTextsInlineAndThroughSharedMemoryUpToTheBound)
{
    // 32767 bytes plus the zero is the largest inline block; one more goes to shared memory.
    for (size_t length : {size_t{1}, size_t{32767}, size_t{32768}, size_t{MAX_SIZE - 1}}) {
        SCOPED_TRACE(length);
        std::string text(length, 'x');
        text.front() = 'A';
        text.back() = 'Z';
        MessageParcel parcel;
        ASSERT_TRUE(ParcelUtil::WriteBigString(parcel, text));
        EXPECT_EQ(parcel.ContainFileDescriptors(), length + 1 > MessageParcel::MAX_INLINE_RAW_DATA_SIZE);
        std::string out = UNTOUCHED;
        CapturedLog log;
        ASSERT_TRUE(Read(parcel, out));
        EXPECT_TRUE(out == text);
        const std::string line =
            "Read message size " + std::to_string(length + 1) + ", real size:" + std::to_string(length);
        EXPECT_EQ(log.Count(READER, line, LOG_INFO), 1u);
    }
}

// A size word and, unless empty, a raw block.
std::function<void(MessageParcel&)> Block(uint32_t sizeWord, const std::string& block = "")
{
    return [sizeWord, block](MessageParcel& p) {
        p.WriteUint32(sizeWord);
        if (!block.empty()) {
            p.WriteRawData(block.data(), block.size());
        }
    };
}

TEST(ParcelUtilTest, RefusesBrokenBlocksNamingWhyAndLeavesTheTextAsItWas)
{
    const struct {
        const char* name;
        std::function<void(MessageParcel&)> write;
        bool ok;
        const char* line;
    } cases[] = {
        {"size word 0", Block(0), true, nullptr},
        {"size word 1", Block(1), true, nullptr},
        {"no size word", [](MessageParcel&) {}, false, "Read message size failed."},
        {"above five mebibytes", Block(MAX_SIZE + 1), false, "The read data is too large."},
        {"size word without block", Block(10), false, "ReadRawData failed "},
        {"block of another size", Block(5, std::string("abcd\0x", 6)), false, "ReadRawData failed "},
        {"last byte not zero", Block(3, "abc"), false, "Read chars error: 3."},
        {"large block, last byte not zero", Block(40000, std::string(40000, 'k')), false, "Read chars error: 40000."},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.name);
        MessageParcel parcel;
        c.write(parcel);
        CapturedLog log;
        std::string out = UNTOUCHED;
        EXPECT_EQ(Read(parcel, out), c.ok);
        EXPECT_EQ(out, UNTOUCHED);
        // The platform may add a line of its own; the reader logs exactly its one.
        EXPECT_EQ(log.Count(READER, ""), c.line == nullptr ? 0u : 1u);
        EXPECT_TRUE(c.line == nullptr || log.Count(READER, c.line, LOG_ERROR) == 1);
    }
}

TEST(ParcelUtilTest, EndsTheTextAtTheFirstZeroInsideTheBlock)
{
    MessageParcel parcel;
    Block(6, std::string("ab\0cd\0", 6))(parcel);
    CapturedLog log;
    std::string out = UNTOUCHED;
    ASSERT_TRUE(Read(parcel, out));
    EXPECT_EQ(out, "ab");
    EXPECT_EQ(log.Count(READER, "Read message size 6, real size:2", LOG_INFO), 1u);
}

TEST(ParcelUtilTest, NamesEachWriteThatFails)
{
    MessageParcel full;
    FillLeaving(full, 0);
    CapturedLog log;
    EXPECT_FALSE(ParcelUtil::WriteBigString(full, "text"));
    EXPECT_EQ(log.Count(WRITER, "Write message size failed.", LOG_ERROR), 1u);

    // One parcel carries one shared-memory block: the second large text fails after its size word.
    MessageParcel parcel;
    const std::string large(40000, 'l');
    ASSERT_TRUE(ParcelUtil::WriteBigString(parcel, large));
    EXPECT_FALSE(ParcelUtil::WriteBigString(parcel, large));
    EXPECT_EQ(log.Count(WRITER, "Write message failed.", LOG_ERROR), 1u);
}

} // namespace
} // namespace Zelkon
} // namespace OHOS
