// Big strings: the size word and data block, the reader's bounds, its refusals and the shared-memory path.
#include <gtest/gtest.h>

#include "hilog/log_capture.h"
#include "parcel_test_util.h"
#include "parcel_util.h"

namespace OHOS {
namespace Zelkon {
namespace {

using HiviewDFX::ScopedLogCapture;

constexpr uint32_t MAX_SIZE = 5242880;
constexpr uint32_t TERMINATOR_SIZE = 1;
constexpr unsigned int SERVICE_DOMAIN = 0xD004614;
const std::string UNTOUCHED = "left as it was";

bool Read(MessageParcel& parcel, std::string& out)
{
    return ParcelUtil::ReadBigString(parcel, out, MAX_SIZE, TERMINATOR_SIZE);
}

// A big string block written by hand: the size word, then a raw block (none when block is empty).
void WriteBlock(MessageParcel& parcel, uint32_t sizeWord, const std::string& block)
{
    ASSERT_TRUE(parcel.WriteUint32(sizeWord));
    if (!block.empty()) {
        ASSERT_TRUE(parcel.WriteRawData(block.data(), block.size()));
    }
}

TEST(ParcelUtilTest, WritesTheEmptyTextAsTheSizeWordAlone)
{
    MessageParcel parcel;
    ScopedLogCapture capture;
    ASSERT_TRUE(ParcelUtil::WriteBigString(parcel, ""));
    EXPECT_TRUE(BytesOf(parcel) == std::vector<uint8_t>({1, 0, 0, 0}));
    EXPECT_EQ(capture.Count("ShareService", "Empty message.", LOG_INFO), 1u);
}

TEST(ParcelUtilTest, WritesTheSizeTwiceThenTheTextWithItsZero)
{
    MessageParcel parcel;
    ScopedLogCapture capture;
    ASSERT_TRUE(ParcelUtil::WriteBigString(parcel, "ab"));
    EXPECT_TRUE(BytesOf(parcel) == std::vector<uint8_t>({3, 0, 0, 0, 3, 0, 0, 0, 'a', 'b', 0, 0}));
    EXPECT_EQ(capture.Count("ShareService", "Send message size:2.", LOG_INFO), 1u);
    const auto lines = capture.Lines();
    ASSERT_EQ(lines.size(), 1u);
    EXPECT_EQ(lines[0].domain, SERVICE_DOMAIN);
}

TEST(ParcelUtilTest, RoundTripsTextsInlineAndThroughSharedMemory)
{
    // 32767 bytes plus the zero is the largest inline block; one more goes to shared memory.
    for (size_t length :
         {size_t{1}, size_t{100}, size_t{32767}, size_t{32768}, size_t{1024 * 1024}, size_t{MAX_SIZE - 1}}) {
        SCOPED_TRACE(length);
        std::string text(length, 'x');
        text.front() = 'A';
        text.back() = 'Z';
        MessageParcel parcel;
        ASSERT_TRUE(ParcelUtil::WriteBigString(parcel, text));
        EXPECT_EQ(parcel.ContainFileDescriptors(), length + 1 > MessageParcel::MAX_INLINE_RAW_DATA_SIZE);
        std::string out = UNTOUCHED;
        ASSERT_TRUE(Read(parcel, out));
        EXPECT_TRUE(out == text);
    }
}

TEST(ParcelUtilTest, LeavesOutAsItWasForTheEmptySizeWords)
{
    for (uint32_t sizeWord : {0u, 1u}) {
        MessageParcel parcel;
        WriteBlock(parcel, sizeWord, "");
        ScopedLogCapture capture;
        std::string out = UNTOUCHED;
        EXPECT_TRUE(Read(parcel, out));
        EXPECT_EQ(out, UNTOUCHED);
        EXPECT_EQ(parcel.GetReadableBytes(), 0u);
        EXPECT_TRUE(capture.Lines().empty());
    }
}

TEST(ParcelUtilTest, RefusesASizeWordAboveFiveMebibytesBeforeReadingTheBlock)
{
    // The writer has no bound of its own: it writes a text that the reader then refuses.
    MessageParcel parcel;
    ASSERT_TRUE(ParcelUtil::WriteBigString(parcel, std::string(MAX_SIZE, 'y')));
    ScopedLogCapture capture;
    std::string out = UNTOUCHED;
    EXPECT_FALSE(Read(parcel, out));
    EXPECT_EQ(out, UNTOUCHED);
    EXPECT_EQ(capture.Count("ShareManagerService", "The read data is too large.", LOG_ERROR), 1u);
    EXPECT_EQ(parcel.GetReadPosition(), sizeof(uint32_t));
}

struct RefusedBlock {
    std::string name;
    uint32_t sizeWord;
    std::string block;
    std::string message;
};

TEST(ParcelUtilTest, RefusesBrokenBlocksAndLeavesOutAsItWas)
{
    const std::vector<RefusedBlock> cases = {
        {"no size word", 0, "", "Read message size failed."},
        {"size word without block", 10, "", "ReadRawData failed "},
        {"block of another size", 5, std::string("abcd\0x", 6), "ReadRawData failed "},
        {"last byte not zero", 3, "abc", "Read chars error: 3."},
        {"large block, last byte not zero", 40000, std::string(40000, 'k'), "Read chars error: 40000."},
    };
    for (const RefusedBlock& testCase : cases) {
        SCOPED_TRACE(testCase.name);
        MessageParcel parcel;
        if (testCase.name != "no size word") {
            WriteBlock(parcel, testCase.sizeWord, testCase.block);
        }
        ScopedLogCapture capture;
        std::string out = UNTOUCHED;
        EXPECT_FALSE(Read(parcel, out));
        EXPECT_EQ(out, UNTOUCHED);
        // The platform may add a line of its own; the reader logs exactly one.
        const auto lines = LinesOf(capture, "ShareManagerService");
        ASSERT_EQ(lines.size(), 1u);
        EXPECT_EQ(lines[0].level, LOG_ERROR);
        EXPECT_EQ(lines[0].domain, SERVICE_DOMAIN);
        EXPECT_TRUE(capture.Contains("ShareManagerService", testCase.message));
    }
}

TEST(ParcelUtilTest, EndsTheTextAtTheFirstZeroInsideTheBlock)
{
    MessageParcel parcel;
    WriteBlock(parcel, 6, std::string("ab\0cd\0", 6));
    ScopedLogCapture capture;
    std::string out = UNTOUCHED;
    ASSERT_TRUE(Read(parcel, out));
    EXPECT_EQ(out, "ab");
    EXPECT_EQ(capture.Count("ShareManagerService", "Read message size 6, real size:2", LOG_INFO), 1u);
}

TEST(ParcelUtilTest, ReportsEachFailedWrite)
{
    MessageParcel full;
    FillLeaving(full, 0);
    ScopedLogCapture capture;
    EXPECT_FALSE(ParcelUtil::WriteBigString(full, "text"));
    EXPECT_EQ(capture.Count("ShareService", "Write message size failed.", LOG_ERROR), 1u);

    // One parcel carries one shared-memory block: the second large text fails after its size word.
    MessageParcel parcel;
    const std::string large(40000, 'l');
    ASSERT_TRUE(ParcelUtil::WriteBigString(parcel, large));
    const size_t before = parcel.GetDataSize();
    EXPECT_FALSE(ParcelUtil::WriteBigString(parcel, large));
    EXPECT_EQ(capture.Count("ShareService", "Write message failed.", LOG_ERROR), 1u);
    EXPECT_GT(parcel.GetDataSize(), before);
}

} // namespace
} // namespace Zelkon
} // namespace OHOS
