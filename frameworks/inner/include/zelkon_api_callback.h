/*
 * The caller's share API callback; the library only hands its remote object to the share manager service.
 */
#ifndef ZELKON_API_CALLBACK_H
#define ZELKON_API_CALLBACK_H

#include "iremote_broker.h"

namespace OHOS {
namespace Zelkon {

class ZelkonApiCallback : public IRemoteBroker {
public:
    DECLARE_INTERFACE_DESCRIPTOR(u"ohos.Zelkon.ZelkonApiCallback");
};

} // namespace Zelkon
} // namespace OHOS

#endif // ZELKON_API_CALLBACK_H
