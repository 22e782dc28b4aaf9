#include "commands.h"

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
} // namespace

const std::vector<Command>& Commands()
{
    static const std::vector<Command> commands{
        {"session",
         "",
         0,
         "a whole sharing session (the default)",
         {LOAD_STEP, PUBLISH_STEP, SUBSCRIBE_STEP, SKIP_DEVICE_STEP, FORWARD_DEVICE_STEP, SEND_FILE_STEP,
          SEND_BYTES_STEP, COMMON_SHARE_STEP, CANCEL_STEP, LIST_DEVICES_STEP, REMOVE_DEVICE_STEP, SWITCH_STEP,
          USERS_STEP, PREPARE_SEND_STEP, PREVIEW_STEP, ACCOUNT_STEP, KILL_STEP, RELOAD_STEP}},
        {"load", "", 0, "load the share service on demand", {LOAD_STEP}},
        {"publish", "", 0, "publish this device", {LOAD_STEP, PUBLISH_STEP}},
        {"subscribe", "", 0, "subscribe to discovered devices", {LOAD_STEP, SUBSCRIBE_STEP}},
        {"device-found",
         "",
         0,
         "report two found devices, one too old to collaborate",
         {LOAD_STEP, SUBSCRIBE_STEP, SKIP_DEVICE_STEP, FORWARD_DEVICE_STEP}},
        {"send-file",
         "[PATH]",
         1,
         "send a file by its descriptor (a temporary file by default)",
         {LOAD_STEP, SEND_FILE_STEP}},
        {"send-bytes", "", 0, "send a few bytes", {LOAD_STEP, SEND_BYTES_STEP}},
        {"share", "", 0, "a common share with a few MiB of content", {LOAD_STEP, COMMON_SHARE_STEP}},
        {"cancel", "", 0, "send bytes, then cancel the transfer", {LOAD_STEP, SEND_BYTES_STEP, CANCEL_STEP}},
        {"devices", "", 0, "list the permanent devices", {LOAD_STEP, LIST_DEVICES_STEP}},
        {"remove-device", "[ID]", 1, "remove a permanent device (id 2 by default)", {LOAD_STEP, REMOVE_DEVICE_STEP}},
        {"switch", "", 0, "turn sharing on and read its state", {SWITCH_STEP}},
        {"users", "", 0, "list the users nearby", {USERS_STEP}},
        {"prepare-send", "", 0, "prepare and send to the first user", {PREPARE_SEND_STEP}},
        {"preview", "", 0, "read the preview data", {PREVIEW_STEP}},
        {"account", "", 0, "read the account", {ACCOUNT_STEP}},
        {"restart", "", 0, "kill the share service and reload it", {LOAD_STEP, KILL_STEP, RELOAD_STEP}},
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
