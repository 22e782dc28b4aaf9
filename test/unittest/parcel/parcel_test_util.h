/*
 * Helpers of the record tests: the bytes of a parcel, parcels cut short, parcels filled up to a given room.
 */
#ifndef PARCEL_TEST_UTIL_H
#define PARCEL_TEST_UTIL_H

#include <cstdint>
#include <gtest/gtest.h>
#include <string>
#include <vector>

#include "hilog/log_capture.h"
#include "message_parcel.h"
#include "parcel_bytes.h"
#include "sample_records.h"
#include "share_device_info.h"

namespace OHOS {
namespace Zelkon {

// Fills the parcel with zero bytes so that exactly room bytes (a multiple of 4) still fit under its limit.
inline void FillLeaving(Parcel& parcel, size_t room)
{
    const std::vector<uint8_t> zeros(parcel.GetMaxCapacity() - parcel.GetDataSize() - room, 0);
    if (!zeros.empty()) {
        parcel.WriteBuffer(zeros.data(), zeros.size());
    }
}

inline std::vector<HiviewDFX::LogEntry> LinesOf(const HiviewDFX::ScopedLogCapture& capture, const std::string& tag)
{
    std::vector<HiviewDFX::LogEntry> lines;
    for (const HiviewDFX::LogEntry& line : capture.Lines()) {
        if (line.tag == tag) {
            lines.push_back(line);
        }
    }
    return lines;
}

inline void ExpectSameDevice(const ShareDeviceInfo& actual, const ShareDeviceInfo& expected)
{
    EXPECT_EQ(actual.deviceName, expected.deviceName);
    EXPECT_EQ(actual.norvaneIdName, expected.norvaneIdName);
    EXPECT_EQ(actual.avatar, expected.avatar);
    EXPECT_EQ(actual.colorId, expected.colorId);
    EXPECT_EQ(actual.eventCode, expected.eventCode);
    EXPECT_EQ(actual.stateCode, expected.stateCode);
    EXPECT_EQ(actual.percent, expected.percent);
    EXPECT_EQ(actual.speed, expected.speed);
    EXPECT_EQ(actual.isDisappeared, expected.isDisappeared);
    EXPECT_EQ(actual.deviceType, expected.deviceType);
    EXPECT_EQ(actual.deviceId, expected.deviceId);
    EXPECT_EQ(actual.nearbyVersion, expected.nearbyVersion);
    EXPECT_EQ(actual.lastSharedTime, expected.lastSharedTime);
    EXPECT_EQ(actual.isSameAccount, expected.isSameAccount);
    EXPECT_EQ(actual.contactInfo.contactKind, expected.contactInfo.contactKind);
    EXPECT_EQ(actual.contactInfo.contactName, expected.contactInfo.contactName);
    EXPECT_EQ(actual.contactInfo.contactPhoto, expected.contactInfo.contactPhoto);
    EXPECT_EQ(actual.isOHDevice, expected.isOHDevice);
    EXPECT_EQ(actual.deviceFounder, expected.deviceFounder);
    EXPECT_EQ(actual.concurentId, expected.concurentId);
    EXPECT_EQ(actual.extraValue, expected.extraValue);
}

} // namespace Zelkon
} // namespace OHOS

#endif // PARCEL_TEST_UTIL_H
