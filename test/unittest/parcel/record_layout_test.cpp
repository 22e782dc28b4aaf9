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

/*
 * Every record against its layout as the services lay it out, through one driver: the record's writer must put
 * the bytes that the parcel's own primitives put field by field, and fail with the field's text (and nothing else)
 * when the room ends at a field; its reader must read those bytes back to the same record, refuse them cut at any
 * byte, and name the field where they end. And the records against the bytes recorded from the device's parcel.
 */
#include <functional>
#include <ostream>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "bytes_info.h"
#include "captured_log.h"
#include "common_share_object.h"
#include "contact_info.h"
#include "golden_vectors.h"
#include "message_parcel.h"
#include "parcel_bytes.h"
#include "permanent_device_info.h"
#include "sample_records.h"
#include "send_bean.h"
#include "share_device.h"

namespace OHOS {
namespace Zelkon {
namespace {

using Write = std::function<bool(MessageParcel&)>;

// One field as the service lays it out: its write with the parcel's primitives, and what the record's writer and
// reader log when the parcel ends there (null: nothing).
struct Field {
    Write write;
    const char* writeFailure = nullptr;
    const char* readFailure = nullptr;
    const char* readTag = "ShareStub";
};

enum class Read { FAILED, DIFFERENT, SAME };

struct RecordCase {
    const char* name;
    std::vector<Field> layout;
    // The record's writer on the sample, where the library writes the record.
    Write write;
    // The record's reader, and whether it read the sample, where the library reads the record.
    std::function<Read(MessageParcel&)> read;
    const char* writeTag = "ShareProxy";
};

// A reader that compares what it read with the sample by writing both with the record's (layout-checked) writer.
template <typename Record>
std::function<Read(MessageParcel&)> ReadsBack(const Record& sample)
{
    return [sample](MessageParcel& parcel) {
        Record read;
        if (!read.ReadFromParcel(parcel)) {
            return Read::FAILED;
        }
        MessageParcel expected;
        MessageParcel actual;
        return sample.WriteToParcel(expected) && read.WriteToParcel(actual) && BytesOf(actual) == BytesOf(expected)
                   ? Read::SAME
                   : Read::DIFFERENT;
    };
}

template <typename Record>
Write Writes(const Record& sample)
{
    return [sample](MessageParcel& parcel) { return sample.WriteToParcel(parcel); };
}

Write Str(const std::string& value)
{
    return [value](MessageParcel& p) { return p.WriteString(value); };
}

Write I32(int32_t value)
{
    return [value](MessageParcel& p) { return p.WriteInt32(value); };
}

Write I64(int64_t value)
{
    return [value](MessageParcel& p) { return p.WriteInt64(value); };
}

RecordCase DeviceCase()
{
    // Empty avatar and photo leave the limit alone, so the room decides which field fails.
    ShareDeviceInfo d = FilledDevice();
    d.avatar.clear();
    d.contactInfo.contactPhoto.clear();
    const ContactInfo contact = d.contactInfo;
    return {"ShareDeviceInfo",
            {{Str(d.deviceName)},
             {Str(d.norvaneIdName), "WriteString norvaneIdName failed.", "ReadString norvaneIdName failed."},
             {Str(d.avatar), "WriteString avatar failed.", "ReadString avatar failed."},
             {I32(d.colorId), "WriteInt32 colorId failed.", "ReadInt32 colorId failed."},
             {I32(d.eventCode), "WriteInt32 eventCode failed.", "ReadInt32 eventCode failed."},
             {I32(d.stateCode), "WriteInt32 stateCode failed.", "ReadInt32 stateCode failed."},
             {I32(d.percent), "WriteInt32 percent failed.", "ReadInt32 percent failed."},
             {I32(d.speed), "WriteInt32 speed failed.", "ReadInt32 speed failed."},
             {I32(d.isDisappeared), "WriteBool isDisappeared failed.", "ReadBool isDisappeared failed."},
             {I32(d.deviceType), "WriteInt32 deviceType failed.", "ReadInt32 deviceType failed."},
             {Str(d.deviceId), "WriteString deviceId failed.", "ReadString deviceId failed."},
             {I32(d.nearbyVersion), "WriteInt32 nearbyVersion failed.", "ReadInt32 nearbyVersion failed."},
             {I64(d.lastSharedTime), "WriteInt64 lastSharedTime failed.", "ReadInt64 lastSharedTime failed."},
             {I32(d.isSameAccount), "WriteBool isSameAccount failed.", "ReadBool isSameAccount failed."},
             {[contact](MessageParcel& p) {
                  return p.WriteInt32(contact.contactKind) && p.WriteString(contact.contactName) &&
                         p.WriteString(contact.contactPhoto);
              },
              "Write contactInfo failed.", "Read contactInfo failed."},
             {I32(d.isOHDevice), "Write isOHDevice failed.", "Read isOHDevice failed."},
             {I32(static_cast<int32_t>(d.deviceFounder)), "WriteInt32 deviceFounder failed.",
              "ReadInt32 deviceFounder failed."},
             {Str(d.concurentId), "WriteString concurentId failed.", "ReadString concurentId failed.", "ShareProxy"},
             {I32(d.extraValue)}},
            Writes(d),
            ReadsBack(d)};
}

RecordCase AccountCase()
{
    ShareAccountInfo a = FilledAccount();
    a.status = INT32_MIN;
    // The last text ends on a word boundary: a reply cut inside its padding would still read.
    a.avatar = "zzz";
    return {"ShareAccountInfo",
            {{Str(a.norvaneAccountID), "WriteString norvaneAccountID failed.", "ReadString norvaneAccountID failed."},
             {Str(a.norvaneAccountIDHash), "WriteString norvaneAccountIDHash failed.",
              "ReadString norvaneAccountIDHash failed."},
             {I32(a.status), "WriteInt32 status failed.", "ReadInt32 status failed."},
             {I32(a.callingUid), "WriteInt32 callingUid failed.", "ReadInt32 callingUid failed."},
             {Str(a.nickName), "WriteString nickName failed.", "ReadString nickName failed."},
             {Str(a.avatar), "WriteString avatar failed.", "ReadString avatar failed."}},
            Writes(a),
            ReadsBack(a)};
}

RecordCase ContactCase()
{
    ContactInfo c;
    c.contactKind = INT32_MIN;
    c.contactName = "\xe8\xae\xbe";
    c.contactPhoto = "pqr";
    return {
        "ContactInfo", {{I32(c.contactKind)}, {Str(c.contactName)}, {Str(c.contactPhoto)}}, Writes(c), ReadsBack(c)};
}

RecordCase PermanentDeviceCase()
{
    return {"PermanentDeviceInfo",
            {{I32(-5)}, {Str("Desk PC")}, {I32(12)}, {Str("udid-77")}, {I64(INT64_MAX)}},
            nullptr,
            [](MessageParcel& parcel) {
                PermanentDeviceInfo d;
                if (!d.ReadFromParcel(parcel)) {
                    return Read::FAILED;
                }
                const bool same = d.id == -5 && d.deviceName == "Desk PC" && d.deviceType == 12 &&
                                  d.deviceId == "udid-77" && d.timestamp == INT64_MAX;
                return same ? Read::SAME : Read::DIFFERENT;
            }};
}

RecordCase SendBeanCase()
{
    SendBean bean;
    bean.previewText = "two files";
    bean.files = {{"file://docs/a", "a", 10}, {"file://docs/b", "b", INT64_MAX}};
    std::vector<Field> layout = {{Str(bean.previewText)}, {I32(2)}};
    for (const FileItem& file : bean.files) {
        layout.insert(layout.end(), {{Str(file.uri)}, {Str(file.name)}, {I64(file.size)}});
    }
    return {"SendBean", layout, Writes(bean), nullptr};
}

RecordCase BytesInfoCase()
{
    BytesInfo info;
    info.mimeType = "text/plain";
    info.bytes = std::string("a\0b", 3);
    return {"BytesInfo", {{Str(info.mimeType)}, {Str(info.bytes)}}, Writes(info), nullptr};
}

RecordCase ShareDeviceCase()
{
    ShareDevice device;
    device.deviceId = "udid";
    device.deviceName = "Phone";
    device.nbVersion_ = 8;
    device.ohFlag_ = -1;
    return {"ShareDevice", {{Str("udid")}, {Str("Phone")}, {I32(8)}, {I32(-1)}}, Writes(device), nullptr};
}

// The generic share object without items (the items carry descriptors: their own test); its texts are the
// application side's.
RecordCase CommonShareObjectCase()
{
    CommonShareObject object;
    object.networkId = "net-7";
    object.timeout = 30000;
    object.type = 2;
    object.resumable = true;
    object.content = "hello";
    return {"CommonShareObject",
            {{Str("net-7"), "Write networkId failed."},
             {I32(30000), "Write timeout failed."},
             {I32(2), "Write type failed."},
             {I32(1), "Write resumable failed."},
             {I32(6), "Write big string failed."},
             {[](MessageParcel& p) { return p.WriteRawData("hello", 6); }, "Write big string failed."},
             {I32(0), "Write file size failed."}},
            [object](MessageParcel& parcel) { return object.WriteToParcel(parcel); },
            nullptr,
            "ShareNapi"};
}

// gtest would otherwise print the raw bytes of the struct.
void PrintTo(const RecordCase& record, std::ostream* out)
{
    *out << record.name;
}

// The record's layout written field by field into `parcel`: the offset at which each field starts.
std::vector<size_t> WriteLayout(const RecordCase& record, MessageParcel& parcel)
{
    std::vector<size_t> offsets;
    for (const Field& field : record.layout) {
        offsets.push_back(parcel.GetDataSize());
        EXPECT_TRUE(field.write(parcel));
    }
    return offsets;
}

// The records the library writes, and those it reads.
class RecordWriterTest : public testing::TestWithParam<RecordCase> {};
class RecordReaderTest : public testing::TestWithParam<RecordCase> {};

TEST_P(RecordWriterTest, WritesTheLayoutAndFailsWithTheFieldsTextWhereTheRoomEnds)
{
    const RecordCase& record = GetParam();
    MessageParcel expected;
    const std::vector<size_t> offsets = WriteLayout(record, expected);
    MessageParcel actual;
    ASSERT_TRUE(record.write(actual));
    EXPECT_EQ(BytesOf(actual), BytesOf(expected));
    for (size_t i = 0; i < record.layout.size(); ++i) {
        SCOPED_TRACE("room ends at field " + std::to_string(i));
        MessageParcel parcel;
        FillLeaving(parcel, offsets[i]);
        CapturedLog log;
        EXPECT_FALSE(record.write(parcel));
        const char* text = record.layout[i].writeFailure;
        EXPECT_EQ(log.Count(record.writeTag, "", LOG_ERROR), text == nullptr ? 0u : 1u);
        EXPECT_TRUE(text == nullptr || log.Contains(record.writeTag, text));
    }
}

TEST_P(RecordReaderTest, ReadsTheLayoutBackAndRefusesItCutAtAnyByteNamingTheField)
{
    const RecordCase& record = GetParam();
    MessageParcel whole;
    const std::vector<size_t> offsets = WriteLayout(record, whole);
    const std::vector<uint8_t> bytes = BytesOf(whole);
    EXPECT_EQ(record.read(whole), Read::SAME);
    EXPECT_EQ(whole.GetReadableBytes(), 0u);
    for (size_t length = 0; length < bytes.size(); ++length) {
        MessageParcel cut;
        LoadBytes(cut, bytes, length);
        EXPECT_EQ(record.read(cut), Read::FAILED) << "cut at byte " << length;
    }
    for (size_t i = 0; i < record.layout.size(); ++i) {
        const Field& field = record.layout[i];
        SCOPED_TRACE("cut at field " + std::to_string(i));
        MessageParcel cut;
        LoadBytes(cut, bytes, offsets[i]);
        CapturedLog log;
        EXPECT_EQ(record.read(cut), Read::FAILED);
        EXPECT_EQ(log.Lines().size(), field.readFailure == nullptr ? 0u : 1u);
        EXPECT_TRUE(field.readFailure == nullptr || log.Count(field.readTag, field.readFailure, LOG_ERROR) == 1);
    }
}

std::string RecordName(const testing::TestParamInfo<RecordCase>& info)
{
    return info.param.name;
}

INSTANTIATE_TEST_SUITE_P(Records, RecordWriterTest,
                         testing::Values(DeviceCase(), AccountCase(), ContactCase(), SendBeanCase(), BytesInfoCase(),
                                         ShareDeviceCase(), CommonShareObjectCase()),
                         RecordName);
INSTANTIATE_TEST_SUITE_P(Records, RecordReaderTest,
                         testing::Values(DeviceCase(), AccountCase(), ContactCase(), PermanentDeviceCase()),
                         RecordName);

const std::map<std::string, GoldenVector>& Golden()
{
    static const auto vectors = LoadGoldenVectors();
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
