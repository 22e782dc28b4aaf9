#ifndef TRANSMIT_PARAM_H
#define TRANSMIT_PARAM_H

#include <string>

#include "i_transmit_callback.h"

namespace OHOS {
namespace Zelkon {

// The kind of a transfer event; its values are the share service's. It travels as one sign-extended word.
enum TransmitEventType : int8_t {
    TRANSMIT_EVENT_DEFAULT = 0,
};

// The parameters of a transfer, written field by field by the share service proxy.
struct TransmitParam {
    std::string deviceId;
    int32_t timeout = 0;
    sptr<ITransmitCallback> transCallback;
    TransmitEventType transmitEventType = TRANSMIT_EVENT_DEFAULT;
};

} // namespace Zelkon
} // namespace OHOS

#endif // TRANSMIT_PARAM_H
