/*
 * The caller's transfer progress callback; the library only hands its remote object to the share service.
 */
#ifndef I_TRANSMIT_CALLBACK_H
#define I_TRANSMIT_CALLBACK_H

#include "iremote_broker.h"

namespace OHOS {
namespace Zelkon {

class ITransmitCallback : public IRemoteBroker {
public:
    DECLARE_INTERFACE_DESCRIPTOR(u"ohos.Zelkon.ITransmitCallback");
};

} // namespace Zelkon
} // namespace OHOS

#endif // I_TRANSMIT_CALLBACK_H
