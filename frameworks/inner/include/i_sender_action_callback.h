/*
 * The caller's sender action callback; the library only hands its remote object to the share manager service.
 */
#ifndef I_SENDER_ACTION_CALLBACK_H
#define I_SENDER_ACTION_CALLBACK_H

#include "iremote_broker.h"

namespace OHOS {
namespace Zelkon {

class ISenderActionCallback : public IRemoteBroker {
public:
    DECLARE_INTERFACE_DESCRIPTOR(u"ohos.Zelkon.ISenderActionCallback");
};

} // namespace Zelkon
} // namespace OHOS

#endif // I_SENDER_ACTION_CALLBACK_H
