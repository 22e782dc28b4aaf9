/*
 * Stand-ins for the two share services on a host: the share service (65569) is loaded on demand by the host system
 * ability manager, as on a device; the share manager service (65570) is simply running. Both decode every request
 * independently of the library and keep a little coherent state.
 */
#ifndef SHARE_EMULATOR_H
#define SHARE_EMULATOR_H

#include <cstdint>
#include <string>

#include "decoded_request.h"

namespace OHOS {
namespace Zelkon {

inline constexpr int32_t EMULATED_SHARE_SERVICE_ID = 65569;
inline constexpr int32_t EMULATED_SHARE_MANAGER_ID = 65570;
inline constexpr const char16_t* SHARE_SERVICE_TOKEN = u"ohos.Zelkon.ZelkonService";
inline constexpr const char16_t* SHARE_MANAGER_TOKEN = u"ohos.Zelkon.IWidgetService";
inline constexpr const char16_t* SENDER_TOKEN = u"ohos.zelkon.ZelkonSender";
inline constexpr const char16_t* RECEIVER_TOKEN = u"ohos.zelkon.ZelkonReceiver";

class ShareEmulator {
public:
    // Registers the loader of the share service and starts the share manager service. Every load starts a fresh
    // share service process with its initial state.
    static void Install();
    // Kills both services and forgets the loader.
    static void Uninstall();
    // The service's process dies: its clients get their death notices. False if it was not running.
    static bool KillShareService();
    static bool KillShareManagerService();
    // Receives every request of both services, on the caller's thread. An empty sink stops the trace.
    static void SetTraceSink(TraceSink sink);
};

} // namespace Zelkon
} // namespace OHOS

#endif // SHARE_EMULATOR_H
