#include <gtest/gtest.h>

#include <vector>

#include "ipc_test_helpers.h"
#include "system_ability_load_callback_stub.h"

namespace OHOS {
namespace {

class RecordingLoadCallback : public SystemAbilityLoadCallbackStub {
public:
    struct Call {
        std::string kind;
        int32_t id;
        int32_t errCode;
        sptr<IRemoteObject> object;
    };

    void OnLoadSystemAbilitySuccess(int32_t id, const sptr<IRemoteObject>& object) override
    {
        calls.push_back({"success", id, 0, object});
    }
    void OnLoadSystemAbilityFail(int32_t id) override { calls.push_back({"fail", id, 0, nullptr}); }
    void OnLoadSystemAbilityFail(int32_t id, int32_t errCode) override
    {
        calls.push_back({"failWithCode", id, errCode, nullptr});
    }

    std::vector<Call> calls;
};

struct Case {
    const char* name;
    std::u16string token;
    uint32_t code;
    std::vector<int32_t> words;
    bool withObject;
    int result;
    const char* kind; // expected callback, or nullptr for none
    int32_t errCode;
};

TEST(SystemAbilityLoadCallbackStubTest, DecodesEachOutcome)
{
    const std::u16string token = ISystemAbilityLoadCallback::GetDescriptor();
    const Case cases[] = {
        {"success", token, 1, {4610}, true, ERR_NONE, "success", 0},
        {"success without object", token, 1, {4610}, false, ERR_NONE, "success", 0},
        {"fail", token, 2, {4610}, false, ERR_NONE, "fail", 0},
        {"fail with code", token, 4, {4610, 77}, false, ERR_NONE, "failWithCode", 77},
        {"wrong token", u"test.Other", 1, {4610}, true, ERR_PERMISSION_DENIED, nullptr, 0},
        {"negative id", token, 1, {-1}, true, ERR_INVALID_VALUE, nullptr, 0},
        {"id above range", token, 2, {0x01000000}, false, ERR_INVALID_VALUE, nullptr, 0},
        {"id missing", token, 2, {}, false, ERR_NONE, "fail", 0},
        {"unknown code", token, 99, {4610}, false, IPC_STUB_UNKNOW_TRANS_ERR, nullptr, 0},
    };
    sptr<IRemoteObject> object = new RecordingStub();
    for (const Case& c : cases) {
        sptr<RecordingLoadCallback> callback = new RecordingLoadCallback();
        MessageParcel data;
        data.WriteInterfaceToken(c.token);
        for (int32_t word : c.words) {
            data.WriteInt32(word);
        }
        if (c.withObject) {
            data.WriteRemoteObject(object);
        }
        MessageParcel reply;
        MessageOption option;
        EXPECT_EQ(callback->SendRequest(c.code, data, reply, option), c.result) << c.name;
        if (c.kind == nullptr) {
            EXPECT_TRUE(callback->calls.empty()) << c.name;
            continue;
        }
        ASSERT_EQ(callback->calls.size(), 1u) << c.name;
        EXPECT_EQ(callback->calls[0].kind, c.kind) << c.name;
        EXPECT_EQ(callback->calls[0].id, c.words.empty() ? 0 : c.words[0]) << c.name;
        EXPECT_EQ(callback->calls[0].errCode, c.errCode) << c.name;
        EXPECT_EQ(callback->calls[0].object, c.withObject ? object : nullptr) << c.name;
    }
}

} // namespace
} // namespace OHOS
