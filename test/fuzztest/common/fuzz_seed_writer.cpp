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
 * Writes the seed corpus of every fuzzer: well-formed replies built with the library's own writers (and frames
 * built with the host transport's encoder), so that the fuzzers start from what a working service sends. A reply
 * fuzzer's seed leads with the byte that picks its operation. Run: fuzz_seed_writer <test/fuzztest folder>.
 */
#include <cstdint>
#include <fstream>
#include <functional>
#include <iostream>
#include <string>
#include <vector>

#include "ipc_frame.h"
#include "message_parcel.h"
#include "parcel_util.h"
#include "sample_records.h"

namespace {
using namespace OHOS;
using namespace OHOS::Zelkon;

using Writer = std::function<bool(MessageParcel&)>;
constexpr int RECORD = -1;
constexpr int LEADING_OBJECT = 0x80;

std::string root;

void WriteSeed(const std::string& fuzzer, const std::string& name, const Writer& writer, int selector)
{
    MessageParcel parcel;
    std::ofstream out(root + "/" + fuzzer + "_fuzzer/corpus/" + name, std::ios::binary);
    if (selector != RECORD) {
        out.put(static_cast<char>(selector));
    }
    if (!writer(parcel) || !out.write(reinterpret_cast<const char*>(parcel.GetData()),
                                      static_cast<std::streamsize>(parcel.GetDataSize()))) {
        std::cerr << "cannot write seed " << fuzzer << "/" << name << "\n";
        exit(1);
    }
}

template <typename Record>
Writer Written(const Record& record)
{
    return [record](MessageParcel& p) { return record.Marshalling(p); };
}

Writer Words(std::initializer_list<int32_t> words)
{
    return [words](MessageParcel& p) {
        bool ok = true;
        for (int32_t word : words) {
            ok = ok && p.WriteInt32(word);
        }
        return ok;
    };
}

bool WritePermanentDevice(MessageParcel& p, int32_t id)
{
    return p.WriteInt32(id) && p.WriteString("Desk PC") && p.WriteInt32(12) && p.WriteString("udid-77") &&
           p.WriteInt64(1760000000000LL);
}

Writer PermanentDevices(int32_t count)
{
    return [count](MessageParcel& p) {
        bool ok = p.WriteInt32(count);
        for (int32_t id = 1; ok && id <= count; ++id) {
            ok = WritePermanentDevice(p, id);
        }
        return ok;
    };
}

Writer Users(int32_t count)
{
    return [count](MessageParcel& p) {
        bool ok = p.WriteInt32(count);
        for (int32_t i = 0; ok && i < count; ++i) {
            ok = FilledDevice().Marshalling(p);
        }
        return ok;
    };
}

void WriteSeeds()
{
    WriteSeed("share_device_info", "default", Written(ShareDeviceInfo()), RECORD);
    WriteSeed("share_device_info", "filled", Written(FilledDevice()), RECORD);
    WriteSeed("contact_info", "default", Written(ContactInfo()), RECORD);
    WriteSeed("contact_info", "filled", Written(FilledDevice().contactInfo), RECORD);
    WriteSeed("share_account_info", "default", Written(ShareAccountInfo()), RECORD);
    WriteSeed("share_account_info", "filled", Written(FilledAccount()), RECORD);
    WriteSeed(
        "permanent_device_info", "basic", [](MessageParcel& p) { return WritePermanentDevice(p, 12); }, RECORD);
    for (int selector : {RECORD, 0}) {
        const char* fuzzer = selector == RECORD ? "big_string" : "preview_data";
        for (const std::string& text : {std::string(), std::string("ab"), std::string(1000, 'p')}) {
            WriteSeed(
                fuzzer, "text" + std::to_string(text.size()),
                [text](MessageParcel& p) { return ParcelUtil::WriteBigString(p, text); }, selector);
        }
        WriteSeed(
            fuzzer, "inner_zero", [](MessageParcel& p) { return p.WriteUint32(6) && p.WriteRawData("ab\0cd", 6); },
            selector);
    }
    for (int op = 0; op < 19; ++op) {
        WriteSeed("share_bool_reply", "op" + std::to_string(op), Words({1}), op);
    }
    for (int op = 0; op < 31; ++op) {
        WriteSeed("share_manager_bool_reply", "op" + std::to_string(op), Words({1}), op);
    }
    for (int op = 0; op < 4; ++op) {
        WriteSeed("sender_reply", "op" + std::to_string(op), Words({}), LEADING_OBJECT | op);
    }
    for (int op = 0; op < 2; ++op) {
        WriteSeed("user_list_reply", "two_op" + std::to_string(op), Users(2), op);
        WriteSeed("user_list_reply", "none_op" + std::to_string(op), Users(0), op);
    }
    WriteSeed(
        "pontal_publish_info", "info",
        [](MessageParcel& p) { return p.WriteString("pontal-info") && p.WriteBool(true); }, 0);
    WriteSeed("permanent_device_list", "two", PermanentDevices(2), 0);
    WriteSeed("permanent_device_list", "none", PermanentDevices(0), 0);
    WriteSeed("receiver_action_callback", "object", Words({}), LEADING_OBJECT);
    WriteSeed("receiver_action_callback", "no_object", Words({}), 0);
    WriteSeed("account_info_reply", "filled", Written(FilledAccount()), 0);
}

// A frame of the host transport, behind the byte that says how many descriptors came with it.
void WriteFrameSeed(const std::string& name, uint8_t fds, const std::vector<uint8_t>& frame)
{
    std::ofstream out(root + "/ipc_frame_fuzzer/corpus/" + name, std::ios::binary);
    out.put(static_cast<char>(fds));
    out.write(reinterpret_cast<const char*>(frame.data()), static_cast<std::streamsize>(frame.size()));
    if (!out) {
        std::cerr << "cannot write seed ipc_frame_fuzzer/" << name << "\n";
        exit(1);
    }
}

IpcFrame::Object FrameObject(uint32_t offset, IpcFrame::ObjectKind kind, uint64_t value,
                             const std::u16string& descriptor = u"", const std::string& address = "")
{
    return IpcFrame::Object{offset, kind, value, descriptor, address};
}

// A frame about one handle of the session, a reference taken or given, with no objects of its own.
IpcFrame HandleFrame(IpcFrame::Kind kind, uint64_t handle, uint64_t transaction)
{
    IpcFrame frame;
    frame.kind = kind;
    frame.handle = handle;
    frame.transaction = transaction;
    return frame;
}

void WriteFrameSeeds()
{
    const std::string address = "ohos.ipc.1234.0123456789abcdef";
    const std::vector<uint8_t> records(48, 0);
    WriteFrameSeed("session_hello", 0, IpcFrame::EncodeHello(IpcFrame::Kind::SESSION_HELLO, 7, 1234, address));
    WriteFrameSeed("channel_hello", 0, IpcFrame::EncodeHello(IpcFrame::Kind::CHANNEL_HELLO, 7, 1234, address));
    IpcFrame frame;
    frame.kind = IpcFrame::Kind::TRANSACTION;
    frame.code = 3;
    frame.transaction = 11;
    frame.objects = {FrameObject(0, IpcFrame::ObjectKind::EXPORTED, 5, u"test.Listener"),
                     FrameObject(24, IpcFrame::ObjectKind::DESCRIPTOR, 0)};
    WriteFrameSeed("transaction", 1, frame.Encode(records.data(), records.size(), 1));
    frame.objects = {FrameObject(0, IpcFrame::ObjectKind::FOREIGN, 9, u"test.Service", address),
                     FrameObject(24, IpcFrame::ObjectKind::RETURNED, 2)};
    WriteFrameSeed("foreign", 0, frame.Encode(records.data(), records.size(), 0));
    frame.kind = IpcFrame::Kind::REPLY;
    frame.objects = {FrameObject(0, IpcFrame::ObjectKind::RETURNED, 3)};
    WriteFrameSeed("reply", 0, frame.Encode(records.data(), records.size(), 0));
    IpcFrame failed;
    failed.kind = IpcFrame::Kind::REPLY;
    failed.status = 5;
    failed.transaction = 11;
    WriteFrameSeed("failed_reply", 0, failed.Encode(nullptr, 0, 0));
    WriteFrameSeed("release", 0, HandleFrame(IpcFrame::Kind::RELEASE, 4, 0).Encode(nullptr, 0, 0));
    // A header that announces one byte more than a binder buffer holds: refused before any body is read.
    const std::vector<uint8_t> beyond(IpcFrame::MAX_DATA_SIZE + 1, 0);
    std::vector<uint8_t> beyondBound = IpcFrame().Encode(beyond.data(), beyond.size(), 0);
    beyondBound.resize(IpcFrame::HEADER_SIZE);
    WriteFrameSeed("beyond_bound", 0, beyondBound);
    WriteFrameSeed("acquire", 0, HandleFrame(IpcFrame::Kind::ACQUIRE, 4, 12).Encode(nullptr, 0, 0));
    WriteFrameSeed("grant", 0,
                   HandleFrame(IpcFrame::Kind::GRANT, 4, 13)
                       .Encode(reinterpret_cast<const uint8_t*>(address.data()), address.size(), 0));
}
} // namespace

int main(int argc, char** argv)
{
    if (argc != 2) {
        std::cerr << "usage: fuzz_seed_writer <test/fuzztest folder>\n";
        return 2;
    }
    root = argv[1];
    WriteSeeds();
    WriteFrameSeeds();
    return 0;
}
