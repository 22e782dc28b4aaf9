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
 * The state that the steps of one sharectl run share, and the steps themselves. A step drives the library, checks
 * the result against what the emulated service should have done, and says what happened in one line.
 */
#ifndef SESSION_H
#define SESSION_H

#include <memory>
#include <string>

#include "demo_remotes.h"
#include "file_to_send.h"
#include "request_log.h"

namespace OHOS {
namespace Zelkon {

struct Session {
    explicit Session(bool trace) : requests(trace) {}

    RequestLog requests;
    LocalRemotes remotes;
    std::shared_ptr<DeathCounter> deathCounter = std::make_shared<DeathCounter>();
    // What the send-file step sends; without one it makes a temporary file of demo content.
    std::unique_ptr<FileToSend> file;
    int32_t removedDeviceId = 2;
};

struct StepResult {
    bool ok;
    std::string detail;
};

struct Step {
    const char* name;
    StepResult (*run)(Session& session);
};

// The share service.
StepResult LoadShareService(Session& session);
StepResult PublishDevice(Session& session);
StepResult SubscribeDevice(Session& session);
StepResult SkipLegacyDevice(Session& session);
StepResult ForwardFoundDevice(Session& session);
StepResult SendRealFile(Session& session);
StepResult SendBytes(Session& session);
StepResult SendCommonShare(Session& session);
StepResult CancelTransfers(Session& session);
StepResult ListPermanentDevices(Session& session);
StepResult RemovePermanentDevice(Session& session);
// The share manager service.
StepResult SwitchSharing(Session& session);
StepResult ListUsers(Session& session);
StepResult PrepareAndSend(Session& session);
StepResult ReadPreviewData(Session& session);
StepResult ReadAccount(Session& session);
// Death and reload of the share service.
StepResult KillShareService(Session& session);
StepResult ReloadOnNextCall(Session& session);

} // namespace Zelkon
} // namespace OHOS

#endif // SESSION_H
