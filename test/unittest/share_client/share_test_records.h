/*
 * Records for the request tests whose own layouts are the service's: each writes one marker word, so that a
 * decoder can tell where the record sits in the request.
 */
#ifndef SHARE_TEST_RECORDS_H
#define SHARE_TEST_RECORDS_H

#include "share_client.h"
#include "share_service_harness.h"

namespace OHOS {
namespace Zelkon {

inline constexpr int32_t SEND_BEAN_MARKER = 0x5EB0;
inline constexpr int32_t DATA_BEAN_MARKER = 0xDA7A;
inline constexpr int32_t BYTES_INFO_MARKER = 0xB17E;
inline constexpr int32_t SHARE_DEVICE_MARKER = 0xDE71;

template <typename Record, int32_t MARKER>
class MarkedRecord : public Record {
public:
    bool Marshalling(Parcel& parcel) const override { return parcel.WriteInt32(MARKER); }
};

using TestSendBean = MarkedRecord<SendBean, SEND_BEAN_MARKER>;
using TestDataBean = MarkedRecord<DataBean, DATA_BEAN_MARKER>;
using TestBytesInfo = MarkedRecord<BytesInfo, BYTES_INFO_MARKER>;

inline sptr<ShareDevice> MakeDevice(int32_t ohFlag, int32_t nearbyVersion)
{
    sptr<ShareDevice> device = new MarkedRecord<ShareDevice, SHARE_DEVICE_MARKER>();
    device->ohFlag_ = ohFlag;
    device->nbVersion_ = nearbyVersion;
    return device;
}

inline TransmitParam MakeTransmitParam()
{
    TransmitParam param;
    param.deviceId = "peer-device-7";
    param.timeout = 30000;
    param.transCallback = new TestRemote<ITransmitCallback>();
    param.transmitEventType = static_cast<TransmitEventType>(-3);
    return param;
}

} // namespace Zelkon
} // namespace OHOS

#endif // SHARE_TEST_RECORDS_H
