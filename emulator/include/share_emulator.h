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
 * Stand-ins for the two share services on a host: the share service (65569) is loaded on demand by the host system
 * ability manager, as on a device; the share manager service (65570) is simply running. Both decode every request
 * independently of the library and keep a little coherent state, seeded from a world.
 *
 * Install puts them in this process's world. In a process that uses the system ability manager of another process
 * (emulator_processes.h), the services are processes of their own started there, and the kills, faults, trace and
 * dump below act on those processes.
 */
#ifndef SHARE_EMULATOR_H
#define SHARE_EMULATOR_H

#include <cstdint>
#include <optional>
#include <string>

#include "decoded_request.h"
#include "emulated_world.h"
#include "emulator_fault.h"

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
    // Registers the loader of the share service and starts the share manager service from `world`, dropping the
    // faults armed before. Every load starts a fresh share service process with the world's permanent devices.
    static void Install(const EmulatedWorld& world = EmulatedWorld::BuiltIn());
    // Kills both services and forgets the loader.
    static void Uninstall();
    // The service's process dies: its clients get their death notices, and these have been delivered in this
    // process when the call returns (unless it is made on an IPC thread, which cannot wait for itself). False if
    // it was not running.
    static bool KillShareService();
    static bool KillShareManagerService();
    // Receives every request of both services, on the caller's thread. An empty sink stops the trace.
    static void SetTraceSink(TraceSink sink);
    // Arms a fault for the next load or request that it concerns; each armed fault plays once.
    static void InjectFault(const EmulatorFault& fault);
    // Each service's state as indented JSON: listeners and callbacks, transfers, devices, the switch, and its
    // requests counted by code; a service whose process is not running shows only that. Empty (logged) when a
    // service's dump is not its state as a JSON object.
    static std::optional<std::string> DumpState();
};

} // namespace Zelkon
} // namespace OHOS

#endif // SHARE_EMULATOR_H
