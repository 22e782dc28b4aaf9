/*
 * The caller's listener for generic share objects; the library only hands its remote object to the share service.
 */
#ifndef I_COMMON_RECEIVE_LISTENER_H
#define I_COMMON_RECEIVE_LISTENER_H

#include "iremote_broker.h"

namespace OHOS {
namespace Zelkon {

class ICommonReceiveListener : public IRemoteBroker {
public:
    DECLARE_INTERFACE_DESCRIPTOR(u"ohos.Zelkon.ICommonReceiveListener");
};

} // namespace Zelkon
} // namespace OHOS

#endif // I_COMMON_RECEIVE_LISTENER_H
