/*
 * Host: lets a test script the system ability manager. Abilities live "in other processes" that can be started
 * on demand by registered loaders, scripted to misbehave, and killed.
 */
#ifndef OHOS_SAMGR_SAMGR_HOST_CONTROL_H
#define OHOS_SAMGR_SAMGR_HOST_CONTROL_H

#include <chrono>
#include <cstdint>
#include <functional>

#include "iremote_object.h"

namespace OHOS {

// What the next scripted loads do instead of the normal outcome.
struct LoadScript {
    enum class Outcome {
        SUCCEED,     // the normal outcome, after `delay`
        FAIL,        // OnLoadSystemAbilityFail
        OTHER_ID,    // OnLoadSystemAbilitySuccess(otherId, object)
        NULL_OBJECT, // OnLoadSystemAbilitySuccess(id, nullptr)
        REFUSE,      // LoadSystemAbility returns refuseCode, no callback
    };
    Outcome outcome = Outcome::SUCCEED;
    std::chrono::milliseconds delay{0};
    int32_t otherId = 0;
    int32_t refuseCode = ERR_INVALID_VALUE;
};

class SamgrHostControl {
public:
    // Creates the stub of an ability when it is loaded and not running.
    using Loader = std::function<sptr<IRemoteObject>()>;

    static void RegisterLoader(int32_t systemAbilityId, Loader loader);
    // The next `count` loads (of any id) follow `script`, then loads behave normally again.
    static void ScriptLoads(const LoadScript& script, int count = 1);
    static void SetManagerUnavailable(bool unavailable);
    // Applies to the remote objects of every ability, present and future.
    static void SetDeathRecipientsRefused(bool refused);
    // The process of the ability dies: its remote object answers ERR_DEAD_OBJECT, its recipients are told (before
    // this returns, unless called on an IPC thread), and the id is absent until it is added or loaded again. False
    // if it was not running.
    static bool KillSystemAbility(int32_t systemAbilityId);
    // CheckSystemAbility and GetSystemAbility calls for the id.
    static int LookupCount(int32_t systemAbilityId);
    // LoadSystemAbility calls for the id, refused ones included.
    static int LoadCount(int32_t systemAbilityId);
    // Waits for pending IPC work, then forgets abilities, loaders, scripts, faults and counts.
    static void Reset();
};

} // namespace OHOS

#endif // OHOS_SAMGR_SAMGR_HOST_CONTROL_H
