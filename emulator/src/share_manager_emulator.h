#ifndef SHARE_MANAGER_EMULATOR_H
#define SHARE_MANAGER_EMULATOR_H

#include <string>
#include <vector>

#include "emulated_service.h"

namespace OHOS {
namespace Zelkon {

// The share manager service (interface "ohos.Zelkon.IWidgetService"): the sharing switch, a few discovered users
// with names, avatars and contacts, preview data large enough for shared memory, and the account.
class ShareManagerEmulator : public EmulatedService {
public:
    ShareManagerEmulator();

    struct User {
        std::string deviceName;
        std::string norvaneIdName;
        std::string avatar;
        int32_t deviceType;
        std::string deviceId;
        int32_t nearbyVersion;
        std::string contactName;
        bool isOHDevice;
    };

private:
    void DefineSwitch();
    void DefineCallbacks();
    void DefineTransfers();
    void DefineQueries();
    int AnswerUsers(MessageParcel& reply);

    std::vector<User> users_;
    bool enabled_ = false;
    int32_t enableState_ = 0;
};

} // namespace Zelkon
} // namespace OHOS

#endif // SHARE_MANAGER_EMULATOR_H
