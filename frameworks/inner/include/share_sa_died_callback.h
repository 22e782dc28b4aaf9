/*
 * Implemented by a caller that wants to hear that the share service died. The client holds it weakly.
 */
#ifndef SHARE_SA_DIED_CALLBACK_H
#define SHARE_SA_DIED_CALLBACK_H

namespace OHOS {
namespace Zelkon {

class ShareSaDiedCallback {
public:
    virtual void OnShareSaDied() = 0;
    virtual ~ShareSaDiedCallback() = default;
};

} // namespace Zelkon
} // namespace OHOS

#endif // SHARE_SA_DIED_CALLBACK_H
