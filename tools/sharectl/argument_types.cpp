#include "argument_types.h"

namespace OHOS {
namespace Zelkon {

const char* ArgumentTypeName(const Argument& argument)
{
    switch (argument.type) {
    case ArgumentType::INT32:
        return "int32";
    case ArgumentType::UINT32:
        return "uint32";
    case ArgumentType::BOOL:
        return "bool";
    case ArgumentType::STRING:
        return "string";
    case ArgumentType::SHARE_DEVICE_INFO:
        return "ShareDeviceInfo";
    case ArgumentType::SEND_BEAN:
        return "SendBean";
    case ArgumentType::DATA_BEAN:
        return "DataBean";
    case ArgumentType::BYTES_INFO:
        return "BytesInfo";
    case ArgumentType::COMMON_SHARE_OBJECT:
        return "CommonShareObject";
    case ArgumentType::SHARE_DEVICE:
        return "ShareDevice";
    case ArgumentType::TRANSMIT_PARAM:
        return "TransmitParam";
    case ArgumentType::LOCAL_STUB:
        return argument.interfaceName;
    }
    return "?";
}

} // namespace Zelkon
} // namespace OHOS
