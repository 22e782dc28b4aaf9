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
 * What the tests of either client share: the client, a scripted stub as the service it meets, and the lines it
 * logs. Every test ends by killing the service, whose death notice drops the client's proxy before the next test.
 */
#ifndef SERVICE_CLIENT_TEST_H
#define SERVICE_CLIENT_TEST_H

#include <cstddef>
#include <cstdint>

#include <gtest/gtest.h>

#include "captured_log.h"
#include "log_line.h"
#include "refbase.h"
#include "samgr_host_control.h"
#include "scripted_stub.h"

namespace OHOS {
namespace Zelkon {

template <typename ClientType, int32_t SERVICE_ID>
class ServiceClientTest : public testing::Test {
protected:
    void TearDown() override
    {
        Client().RegisterDiedCallback(nullptr);
        SamgrHostControl::KillSystemAbility(SERVICE_ID);
        // Delivers the death notice, so the client has dropped its proxy before the next test.
        SamgrHostControl::Reset();
    }

    static ClientType& Client() { return ClientType::GetInstance(); }

    size_t Logged(const LogLine& line) const { return Zelkon::Logged(log_, line); }

    sptr<ScriptedStub> stub_;
    CapturedLog log_;
};

} // namespace Zelkon
} // namespace OHOS

#endif // SERVICE_CLIENT_TEST_H
