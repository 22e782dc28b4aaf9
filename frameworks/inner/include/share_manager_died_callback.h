/*
 * Implemented by a caller that wants to hear that the share manager service died. The client holds it weakly.
 */
#ifndef SHARE_MANAGER_DIED_CALLBACK_H
#define SHARE_MANAGER_DIED_CALLBACK_H

namespace OHOS {
namespace Zelkon {

class ShareManagerDiedCallback {
public:
    virtual void OnShareManagerDied() = 0;
    virtual ~ShareManagerDiedCallback() = default;
};

} // namespace Zelkon
} // namespace OHOS

#endif // SHARE_MANAGER_DIED_CALLBACK_H
