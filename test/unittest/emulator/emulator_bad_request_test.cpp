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
 * Requests that a hostile or broken client could send: each one is refused with an error code and a log line,
 * leaves no partial reply, and the service keeps answering afterwards.
 */
#include <cctype>
#include <cstdint>
#include <functional>
#include <ostream>
#include <string>
#include <vector>

#include "captured_log.h"
#include "emulator_test_fixture.h"
#include "ipc_types.h"

namespace OHOS {
namespace Zelkon {
namespace {

enum class Target { SHARE_SERVICE, SHARE_MANAGER };

struct BadRequest {
    const char* name;
    Target target;
    uint32_t code;
    std::function<void(MessageParcel&)> write;
    int expected;
};

// gtest would otherwise print the raw bytes of the struct, padding included.
void PrintTo(const BadRequest& request, std::ostream* out)
{
    *out << request.name;
}

void ShareToken(MessageParcel& data)
{
    data.WriteInterfaceToken(SHARE_SERVICE_TOKEN);
}

void ManagerToken(MessageParcel& data)
{
    data.WriteInterfaceToken(SHARE_MANAGER_TOKEN);
}

// Transfer parameters of a file transfer, up to the record.
void SendParams(MessageParcel& data)
{
    ShareToken(data);
    data.WriteString("dev-1001-phone");
    data.WriteInt32(30);
    data.WriteRemoteObject(new TestListener());
    data.WriteString("com.example.test");
    data.WriteInt8(0);
}

// A common share object up to its content.
void ShareHead(MessageParcel& data)
{
    ShareToken(data);
    data.WriteString("dev-1002-tablet");
    data.WriteInt32(30);
    data.WriteInt32(1);
    data.WriteBool(false);
}

// A request's head followed by 32-bit words: counts, sizes and flags as the services read them.
std::function<void(MessageParcel&)> HeadThenWords(void (*head)(MessageParcel&), std::vector<uint32_t> words)
{
    return [head, words](MessageParcel& data) {
        head(data);
        for (uint32_t word : words) {
            data.WriteUint32(word);
        }
    };
}

const std::vector<BadRequest> BAD_REQUESTS = {
    {"share service, token of the other service", Target::SHARE_SERVICE, 26, ManagerToken, ERR_INVALID_STATE},
    {"share manager, token of the other service", Target::SHARE_MANAGER, 3, ShareToken, ERR_INVALID_STATE},
    {"share service, no token at all", Target::SHARE_SERVICE, 16, [](MessageParcel&) {}, ERR_INVALID_STATE},
    {"share service, code 9 is not in use", Target::SHARE_SERVICE, 9, ShareToken, IPC_STUB_UNKNOW_TRANS_ERR},
    {"share service, code past the last", Target::SHARE_SERVICE, 28, ShareToken, IPC_STUB_UNKNOW_TRANS_ERR},
    {"share manager, code past the last", Target::SHARE_MANAGER, 37, ManagerToken, IPC_STUB_UNKNOW_TRANS_ERR},
    {"unpublish without its listener", Target::SHARE_SERVICE, 2, HeadThenWords(ShareToken, {1}), ERR_INVALID_DATA},
    {"file transfer without its record", Target::SHARE_SERVICE, 7, SendParams, ERR_INVALID_DATA},
    {"file transfer claiming more files than its bytes hold", Target::SHARE_SERVICE, 7,
     [](MessageParcel& data) {
         SendParams(data);
         data.WriteString("preview");
         data.WriteUint32(50);
         data.WriteString("file:///a");
     },
     ERR_INVALID_DATA},
    {"common share whose content claims 2 GiB", Target::SHARE_SERVICE, 14, HeadThenWords(ShareHead, {0x80000000u}),
     ERR_INVALID_DATA},
    {"common share whose content is not terminated", Target::SHARE_SERVICE, 14,
     [](MessageParcel& data) {
         ShareHead(data);
         data.WriteUint32(4);
         data.WriteRawData("abcd", 4);
     },
     ERR_INVALID_DATA},
    {"common share claiming a million items", Target::SHARE_SERVICE, 14, HeadThenWords(ShareHead, {1, 1000000}),
     ERR_INVALID_DATA},
    {"switch cut before its flag", Target::SHARE_MANAGER, 1, HeadThenWords(ManagerToken, {0, 1}), ERR_INVALID_DATA},
    {"prepare with half a device record", Target::SHARE_MANAGER, 12,
     [](MessageParcel& data) {
         ManagerToken(data);
         data.WriteString("name");
         data.WriteString("account");
     },
     ERR_INVALID_DATA},
    {"callback registration without the callback", Target::SHARE_MANAGER, 5, ManagerToken, ERR_INVALID_DATA},
};

class EmulatorBadRequestTest : public EmulatorTest, public testing::WithParamInterface<BadRequest> {};

TEST_P(EmulatorBadRequestTest, IsRefusedWithAnErrorAndTheServiceKeepsAnswering)
{
    const BadRequest& bad = GetParam();
    const sptr<IRemoteObject>& service = bad.target == Target::SHARE_SERVICE ? shareService_ : shareManager_;
    CapturedLog log;
    MessageParcel data;
    MessageParcel reply;
    bad.write(data);

    EXPECT_EQ(Send(service, bad.code, data, reply), bad.expected);
    EXPECT_EQ(reply.GetDataSize(), 0u);
    EXPECT_GT(log.Count("ShareEmulator", "", LOG_ERROR), 0u);

    // Still alive and unchanged: the permanent devices and the switch are as they started.
    MessageParcel listData;
    MessageParcel listReply;
    ShareToken(listData);
    ASSERT_EQ(Send(shareService_, 26, listData, listReply), 0);
    EXPECT_EQ(listReply.ReadInt32(), 3);
    EXPECT_TRUE(AskBool(shareManager_, SHARE_MANAGER_TOKEN, 3));
}

INSTANTIATE_TEST_SUITE_P(Table, EmulatorBadRequestTest, testing::ValuesIn(BAD_REQUESTS),
                         [](const testing::TestParamInfo<BadRequest>& info) {
                             std::string name;
                             for (const char* c = info.param.name; *c != '\0'; ++c) {
                                 name.push_back(std::isalnum(static_cast<unsigned char>(*c)) ? *c : '_');
                             }
                             return name;
                         });

} // namespace
} // namespace Zelkon
} // namespace OHOS
