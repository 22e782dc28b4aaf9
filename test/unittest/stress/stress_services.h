/*
 * The two services of the stress test, registered with the host system ability manager: the share service is
 * started on demand by a loader, the share manager is added by the test. Each generation is a scripted stub that
 * answers every request well-formed, so that a call gives either the full result or, when a death got in the
 * way, the neutral one.
 */
#ifndef STRESS_SERVICES_H
#define STRESS_SERVICES_H

#include <functional>
#include <string>
#include <vector>

namespace OHOS {
namespace Zelkon {

// One client operation: runs it and says what was wrong with its result (empty when it was right).
struct StressCall {
    std::string name;
    std::function<std::string()> run;
};

class StressServices {
public:
    void Start();
    void KillBoth();
    // The share manager is only looked up, never loaded: it comes back when it is added again.
    void RestartManager();
    const std::vector<StressCall>& Calls() const;
};

} // namespace Zelkon
} // namespace OHOS

#endif // STRESS_SERVICES_H
