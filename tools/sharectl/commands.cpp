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

#include "commands.h"

#include "strict_values.h"

namespace OHOS {
namespace Zelkon {
namespace {
const Step LOAD_STEP{"load the share service", LoadShareService};
const Step PUBLISH_STEP{"publish", PublishDevice};
const Step SUBSCRIBE_STEP{"subscribe", SubscribeDevice};
const Step SKIP_DEVICE_STEP{"device found, old version", SkipLegacyDevice};
const Step FORWARD_DEVICE_STEP{"device found", ForwardFoundDevice};
const Step SEND_FILE_STEP{"send a file", SendRealFile};
const Step SEND_BYTES_STEP{"send bytes", SendBytes};
const Step COMMON_SHARE_STEP{"common share", SendCommonShare};
const Step CANCEL_STEP{"cancel", CancelTransfers};
const Step LIST_DEVICES_STEP{"permanent devices", ListPermanentDevices};
const Step REMOVE_DEVICE_STEP{"remove a permanent device", RemovePermanentDevice};
const Step SWITCH_STEP{"sharing switch", SwitchSharing};
const Step USERS_STEP{"user list", ListUsers};
const Step PREPARE_SEND_STEP{"prepare and send", PrepareAndSend};
const Step PREVIEW_STEP{"preview data", ReadPreviewData};
const Step ACCOUNT_STEP{"account", ReadAccount};
const Step KILL_STEP{"kill the share service", KillShareService};
const Step RELOAD_STEP{"reload on the next call", ReloadOnNextCall};

void PrepareFile(const std::string& path, Session& session)
{
    session.file = FileToSend::Open(path);
}

void PrepareRemovedDevice(const std::string& id, Session& session)
{
    session.removedDeviceId = RequireInteger<int32_t>(id, "remove-device ID");
}
} // namespace

const std::vector<Command>& Commands()
{
    static const std::vector<Command> commands{
        {"session",
         "a whole sharing session (the default)",
         {LOAD_STEP, PUBLISH_STEP, SUBSCRIBE_STEP, SKIP_DEVICE_STEP, FORWARD_DEVICE_STEP, SEND_FILE_STEP,
          SEND_BYTES_STEP, COMMON_SHARE_STEP, CANCEL_STEP, LIST_DEVICES_STEP, REMOVE_DEVICE_STEP, SWITCH_STEP,
          USERS_STEP, PREPARE_SEND_STEP, PREVIEW_STEP, ACCOUNT_STEP, KILL_STEP, RELOAD_STEP}},
        {"load", "load the share service on demand", {LOAD_STEP}},
        {"publish", "publish this device", {LOAD_STEP, PUBLISH_STEP}},
        {"subscribe", "subscribe to discovered devices", {LOAD_STEP, SUBSCRIBE_STEP}},
        {"device-found",
         "report two found devices, one too old to collaborate",
         {LOAD_STEP, SUBSCRIBE_STEP, SKIP_DEVICE_STEP, FORWARD_DEVICE_STEP}},
        {"send-file",
         "send a regular file by its descriptor (- for standard input; demo content by default)",
         {LOAD_STEP, SEND_FILE_STEP},
         "PATH",
         PrepareFile},
        {"send-bytes", "send a few bytes", {LOAD_STEP, SEND_BYTES_STEP}},
        {"share", "a common share with a few MiB of content", {LOAD_STEP, COMMON_SHARE_STEP}},
        {"cancel", "send bytes, then cancel the transfer", {LOAD_STEP, SEND_BYTES_STEP, CANCEL_STEP}},
        {"devices", "list the permanent devices", {LOAD_STEP, LIST_DEVICES_STEP}},
        {"remove-device",
         "remove a permanent device (id 2 by default)",
         {LOAD_STEP, REMOVE_DEVICE_STEP},
         "ID",
         PrepareRemovedDevice},
        {"switch", "turn sharing on and read its state", {SWITCH_STEP}},
        {"users", "list the users nearby", {USERS_STEP}},
        {"prepare-send", "prepare and send to the first user", {PREPARE_SEND_STEP}},
        {"preview", "read the preview data", {PREVIEW_STEP}},
        {"account", "read the account", {ACCOUNT_STEP}},
        {"restart", "kill the share service and reload it", {LOAD_STEP, KILL_STEP, RELOAD_STEP}},
    };
    return commands;
}

const Command* FindCommand(const std::string& name)
{
    for (const Command& command : Commands()) {
        if (name == command.name) {
            return &command;
        }
    }
    return nullptr;
}

} // namespace Zelkon
} // namespace OHOS
