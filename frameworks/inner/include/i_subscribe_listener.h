/*
 * The caller's subscribe listener; the library only hands its remote object to the share service.
 */
#ifndef I_SUBSCRIBE_LISTENER_H
#define I_SUBSCRIBE_LISTENER_H

#include "iremote_broker.h"

namespace OHOS {
namespace Zelkon {

class ISubscribeListener : public IRemoteBroker {
public:
    DECLARE_INTERFACE_DESCRIPTOR(u"ohos.Zelkon.ISubscribeListener");
};

} // namespace Zelkon
} // namespace OHOS

#endif // I_SUBSCRIBE_LISTENER_H
