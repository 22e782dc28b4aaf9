/*
 * Writes the seed corpus of every fuzzer: well-formed replies built with the library's own writers, so that
 * the fuzzers start from what a working service sends. Run: fuzz_seed_writer <test/fuzztest folder>.
 */
#include <cstdint>
#include <fstream>
#include <functional>
#include <iostream>
#include <string>

#include "contact_info.h"
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
    // The preview is a reply: its seeds lead with the selector byte of its one operation.
    for (int selector : {-1, 0}) {
        const char* fuzzer = selector < 0 ? "big_string_fuzzer" : "preview_data_fuzzer";
        WriteSeed(fuzzer, "empty", BigString(""), selector);
        WriteSeed(fuzzer, "short", BigString("ab"), selector);
        WriteSeed(fuzzer, "text", BigString(std::string(1000, 'p')), selector);
        WriteSeed(
            fuzzer, "inner_zero", [](MessageParcel& p) { return p.WriteUint32(6) && p.WriteRawData("ab\0cd", 6); },
            selector);
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
    WriteSeed(
        "pontal_publish_info_fuzzer", "info",
        [](MessageParcel& p) { return p.WriteString("pontal-info") && p.WriteBool(true); }, 0);
    WriteSeed(
        "pontal_publish_info_fuzzer", "empty", [](MessageParcel& p) { return p.WriteString("") && p.WriteBool(false); },
        0);
    WriteSeed(
        "permanent_device_list_fuzzer", "two",
        [](MessageParcel& p) {
            return p.WriteInt32(2) && WritePermanentDevice(p, 1, "Desk PC") && WritePermanentDevice(p, 2, "Laptop");
        },
        0);
    WriteSeed(
        "permanent_device_list_fuzzer", "none", [](MessageParcel& p) { return p.WriteInt32(0); }, 0);
    for (uint8_t op = 0; op < USER_LIST_OPERATIONS; ++op) {
        WriteSeed("user_list_reply_fuzzer", "two_op" + std::to_string(op), UserList(2), op);
        WriteSeed("user_list_reply_fuzzer", "none_op" + std::to_string(op), UserList(0), op);
    }
    const Writer nothing = [](MessageParcel&) { return true; };
    WriteSeed("receiver_action_callback_fuzzer", "object", nothing, LEADING_OBJECT);
    WriteSeed("receiver_action_callback_fuzzer", "no_object", nothing, 0);
    WriteSeed(
        "account_info_reply_fuzzer", "filled", [](MessageParcel& p) { return FilledAccount().Marshalling(p); }, 0);
    for (uint8_t op = 0; op < SENDER_OPERATIONS; ++op) {
        WriteSeed("sender_reply_fuzzer", "op" + std::to_string(op), nothing, LEADING_OBJECT | op);
    }
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
    return 0;
}
