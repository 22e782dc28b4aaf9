/*
 * Writes the seed corpus of every fuzzer: well-formed replies built with the library's own writers (and frames
 * built with the host transport's encoder), so that the fuzzers start from what a working service sends. Run:
 * fuzz_seed_writer <test/fuzztest folder>.
 */
#include <cstdint>
#include <fstream>
#include <functional>
#include <iostream>
#include <string>
#include <vector>

#include "contact_info.h"
#include "ipc_frame.h"
#include "message_parcel.h"
#include "parcel_util.h"
#include "sample_records.h"
#include "share_account_info.h"
#include "share_device_info.h"

namespace {
using namespace OHOS;
using namespace OHOS::Zelkon;

using Writer = std::function<bool(MessageParcel&)>;

// Counts of the operations that the selector byte of the multi-operation fuzzers picks from.
constexpr uint8_t SHARE_BOOL_OPERATIONS = 19;
constexpr uint8_t MANAGER_BOOL_OPERATIONS = 31;
constexpr uint8_t USER_LIST_OPERATIONS = 2;
constexpr uint8_t SENDER_OPERATIONS = 4;
constexpr uint8_t LEADING_OBJECT = 0x80;

std::string root;

void WriteSeed(const std::string& fuzzer, const std::string& name, const Writer& writer, int selector = -1)
{
    MessageParcel parcel;
    if (!writer(parcel)) {
        std::cerr << "cannot build seed " << fuzzer << "/" << name << "\n";
        exit(1);
    }
    std::ofstream out(root + "/" + fuzzer + "/corpus/" + name, std::ios::binary);
    if (selector >= 0) {
        out.put(static_cast<char>(selector));
    }
    out.write(reinterpret_cast<const char*>(parcel.GetData()), static_cast<std::streamsize>(parcel.GetDataSize()));
    if (!out) {
        std::cerr << "cannot write seed " << fuzzer << "/" << name << "\n";
        exit(1);
    }
}

ContactInfo FilledContact()
{
    ContactInfo contact;
    contact.contactKind = 2;
    contact.contactName = "Ada";
    contact.contactPhoto = "data:image/png;base64,AAAA";
    return contact;
}

ShareDeviceInfo NamedDevice(const std::string& name)
{
    ShareDeviceInfo device = FilledDevice();
    device.deviceName = name;
    return device;
}

bool WritePermanentDevice(MessageParcel& p, int32_t id, const std::string& name)
{
    return p.WriteInt32(id) && p.WriteString(name) && p.WriteInt32(12) && p.WriteString("udid-77") &&
           p.WriteInt64(1760000000000LL);
}

Writer UserList(int32_t count)
{
    return [count](MessageParcel& p) {
        bool ok = p.WriteInt32(count);
        for (int32_t i = 0; ok && i < count; ++i) {
            ok = NamedDevice("device " + std::to_string(i)).Marshalling(p);
        }
        return ok;
    };
}

Writer BigString(const std::string& text)
{
    return [text](MessageParcel& p) { return ParcelUtil::WriteBigString(p, text); };
}

void WriteRecordSeeds()
{
    WriteSeed("share_device_info_fuzzer", "default", [](MessageParcel& p) { return ShareDeviceInfo().Marshalling(p); });
    WriteSeed("share_device_info_fuzzer", "filled",
              [](MessageParcel& p) { return NamedDevice("tablet").Marshalling(p); });
    WriteSeed("contact_info_fuzzer", "default", [](MessageParcel& p) { return ContactInfo().Marshalling(p); });
    WriteSeed("contact_info_fuzzer", "filled", [](MessageParcel& p) { return FilledContact().Marshalling(p); });
    WriteSeed("share_account_info_fuzzer", "default",
              [](MessageParcel& p) { return ShareAccountInfo().Marshalling(p); });
    WriteSeed("share_account_info_fuzzer", "filled", [](MessageParcel& p) { return FilledAccount().Marshalling(p); });
    WriteSeed("permanent_device_info_fuzzer", "basic",
              [](MessageParcel& p) { return WritePermanentDevice(p, 12, "Desk PC"); });
    for (const char* fuzzer : {"big_string_fuzzer", "preview_data_fuzzer"}) {
        WriteSeed(fuzzer, "empty", BigString(""));
        WriteSeed(fuzzer, "short", BigString("ab"));
        WriteSeed(fuzzer, "text", BigString(std::string(1000, 'p')));
        WriteSeed(fuzzer, "inner_zero",
                  [](MessageParcel& p) { return p.WriteUint32(6) && p.WriteRawData("ab\0cd", 6); });
    }
}

void WriteReplySeeds()
{
    const Writer yes = [](MessageParcel& p) { return p.WriteBool(true); };
    for (uint8_t op = 0; op < SHARE_BOOL_OPERATIONS; ++op) {
        WriteSeed("share_bool_reply_fuzzer", "op" + std::to_string(op), yes, op);
    }
    for (uint8_t op = 0; op < MANAGER_BOOL_OPERATIONS; ++op) {
        WriteSeed("share_manager_bool_reply_fuzzer", "op" + std::to_string(op), yes, op);
    }
    WriteSeed("pontal_publish_info_fuzzer", "info",
              [](MessageParcel& p) { return p.WriteString("pontal-info") && p.WriteBool(true); });
    WriteSeed("pontal_publish_info_fuzzer", "empty",
              [](MessageParcel& p) { return p.WriteString("") && p.WriteBool(false); });
    WriteSeed("permanent_device_list_fuzzer", "two", [](MessageParcel& p) {
        return p.WriteInt32(2) && WritePermanentDevice(p, 1, "Desk PC") && WritePermanentDevice(p, 2, "Laptop");
    });
    WriteSeed("permanent_device_list_fuzzer", "none", [](MessageParcel& p) { return p.WriteInt32(0); });
    for (uint8_t op = 0; op < USER_LIST_OPERATIONS; ++op) {
        WriteSeed("user_list_reply_fuzzer", "two_op" + std::to_string(op), UserList(2), op);
        WriteSeed("user_list_reply_fuzzer", "none_op" + std::to_string(op), UserList(0), op);
    }
    const Writer nothing = [](MessageParcel&) { return true; };
    WriteSeed("receiver_action_callback_fuzzer", "object", nothing, LEADING_OBJECT);
    WriteSeed("receiver_action_callback_fuzzer", "no_object", nothing, 0);
    WriteSeed("account_info_reply_fuzzer", "filled", [](MessageParcel& p) { return FilledAccount().Marshalling(p); });
    for (uint8_t op = 0; op < SENDER_OPERATIONS; ++op) {
        WriteSeed("sender_reply_fuzzer", "op" + std::to_string(op), nothing, LEADING_OBJECT | op);
    }
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

void WriteFrameSeeds()
{
    const std::string address = "ohos.ipc.1234.0123456789abcdef";
    const std::vector<uint8_t> records(48, 0);
    WriteFrameSeed("session_hello", 0, IpcFrame::EncodeHello(IpcFrame::Kind::SESSION_HELLO, 7, 1234, address));
    WriteFrameSeed("channel_hello", 0, IpcFrame::EncodeHello(IpcFrame::Kind::CHANNEL_HELLO, 7, 1234, address));
    IpcFrame frame;
    frame.kind = IpcFrame::Kind::TRANSACTION;
    frame.code = 3;
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
    WriteFrameSeed("failed_reply", 0, failed.Encode(nullptr, 0, 0));
    IpcFrame release;
    release.kind = IpcFrame::Kind::RELEASE;
    release.handle = 4;
    WriteFrameSeed("release", 0, release.Encode(nullptr, 0, 0));
}
} // namespace

int main(int argc, char** argv)
{
    if (argc != 2) {
        std::cerr << "usage: fuzz_seed_writer <test/fuzztest folder>\n";
        return 2;
    }
    root = argv[1];
    WriteRecordSeeds();
    WriteReplySeeds();
    WriteFrameSeeds();
    return 0;
}
