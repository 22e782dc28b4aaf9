#ifndef SHARE_SERVICE_EMULATOR_H
#define SHARE_SERVICE_EMULATOR_H

#include <string>
#include <vector>

#include "emulated_service.h"

namespace OHOS {
namespace Zelkon {

// The share service (interface "ohos.Zelkon.ZelkonService"): listeners, transfers answered by a sender object,
// and a list of permanent devices that removal really shortens.
class ShareServiceEmulator : public EmulatedService {
public:
    ShareServiceEmulator();

private:
    struct PermanentDevice {
        int32_t id;
        std::string deviceName;
        int32_t deviceType;
        std::string deviceId;
        int64_t timestamp;
    };

    void DefineListenerRequests();
    void DefineTransfers();
    void DefineDiscoveryRequests();
    void DefinePermanentDevices();
    int AnswerSender(RequestReader& request, MessageParcel& reply);

    std::vector<PermanentDevice> permanentDevices_;
    int listeners_ = 0;
};

} // namespace Zelkon
} // namespace OHOS

#endif // SHARE_SERVICE_EMULATOR_H
