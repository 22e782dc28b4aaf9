// The constants shared with the services: the relations between them that the services rely on.
#include <algorithm>
#include <cctype>
#include <gtest/gtest.h>
#include <set>

#include "share_common_constants.h"
#include "share_connectivity_constants.h"
#include "share_message_constants.h"
#include "share_path_constants.h"
#include "share_radar_constants.h"

namespace OHOS {
namespace Zelkon {
namespace {

TEST(ShareConstantsTest, TriggerCodesKnowOnlyKnockAndGestures)
{
    EXPECT_EQ(TRIGGER_CODES.size(), 2u);
    EXPECT_EQ(TRIGGER_CODES.at(TRIGGER_KNOCK_SHARE), 2);
    EXPECT_EQ(TRIGGER_CODES.at(TRIGGER_GESTURES_SHARE), 3);
    EXPECT_EQ(TRIGGER_CODES.find(TRIGGER_SWING_SHARE), TRIGGER_CODES.end());
    EXPECT_EQ(TRIGGER_CODES.find(TRIGGER_GESTURE_SHARE), TRIGGER_CODES.end());
}

TEST(ShareConstantsTest, BundleMapsAreInverseOnlyForCalendarAndNotepad)
{
    for (const auto& [newer, older] : NEW_TO_OLD_BUNDLE_NAMES) {
        ASSERT_EQ(OLD_TO_NEW_BUNDLE_NAMES.count(older), 1u) << older;
        EXPECT_EQ(OLD_TO_NEW_BUNDLE_NAMES.at(older), newer);
    }
    std::set<std::string> onlyOneWay;
    for (const auto& [older, newer] : OLD_TO_NEW_BUNDLE_NAMES) {
        if (NEW_TO_OLD_BUNDLE_NAMES.count(newer) == 0) {
            onlyOneWay.insert(older);
        }
    }
    EXPECT_EQ(onlyOneWay, (std::set<std::string>{"com.norvane.contacts", "com.norvane.quibba"}));
    EXPECT_EQ(NEW_TO_OLD_BUNDLE_NAMES.at("com.norvane.tirmo.calendar"), "com.norvane.calendar");
}

TEST(ShareConstantsTest, CalendarTypeMapsAreInverseAndKeepTheBackslash)
{
    ASSERT_EQ(DATA_TYPE_TO_MIME_TYPE.size(), 1u);
    ASSERT_EQ(MIME_TYPE_TO_DATA_TYPE.size(), 1u);
    const std::string& mime = DATA_TYPE_TO_MIME_TYPE.at("general.calendar");
    EXPECT_EQ(mime, std::string("text") + '\\' + "/x-vcalendar");
    EXPECT_EQ(MIME_TYPE_TO_DATA_TYPE.at(mime), "general.calendar");
}

TEST(ShareConstantsTest, MarkerSuffixedNamesAreTheBareNamesFollowedByTheMarker)
{
    EXPECT_EQ(FILE_MARKER, "*%ZELKON_FILE%*");
    const std::vector<std::pair<std::string, std::string>> suffixed = {
        {CONFIRM_WITH_MARKER, "confirm"},
        {REJECT_WITH_MARKER, "reject"},
        {RECV_FILE_PERCENT_WITH_MARKER, RECV_FILE_PERCENT},
        {THERMAL_LEVEL_CHANGED_WITH_MARKER, THERMAL_LEVEL_CHANGED},
        {THERMAL_INTERRUPT_WITH_MARKER, THERMAL_INTERRUPT},
    };
    for (const auto& [withMarker, bare] : suffixed) {
        EXPECT_EQ(withMarker, bare + "*%ZELKON_FILE%*");
    }
    EXPECT_EQ(RECV_FILE_PERCENT, "recvFilePercent");
    EXPECT_EQ(THERMAL_LEVEL_CHANGED, "thermalLevelChanged");
    EXPECT_EQ(THERMAL_INTERRUPT, "thermalInterrupt");
}

TEST(ShareConstantsTest, PlaceholderHashesArePrefixesOfTheDigestOfZero)
{
    // SHA-256 of the one-character text "0".
    const std::string digest = "5feceb66ffc86f38d952786c6d696c79c2dbc239dd4e91b46729d73a27fb57e9";
    std::string upper = digest.substr(0, PLACEHOLDER_ACCOUNT_HASH.size());
    std::transform(upper.begin(), upper.end(), upper.begin(), [](unsigned char c) { return std::toupper(c); });
    EXPECT_EQ(PLACEHOLDER_ACCOUNT_HASH.size(), 14u);
    EXPECT_EQ(PLACEHOLDER_ACCOUNT_HASH, upper);
    EXPECT_EQ(ZERO_ACCOUNT_HASH, std::string(PLACEHOLDER_ACCOUNT_HASH.size(), '0'));
}

TEST(ShareConstantsTest, BluetoothUuidsAreTheAssignedServiceClassesInOrder)
{
    const std::vector<std::string> uuids = {
        BT_BASE_UUID,
        BT_AUDIO_SINK_UUID,
        BT_AUDIO_SOURCE_UUID,
        BT_GENERIC_ATTRIBUTE_UUID,
        BT_AV_REMOTE_CONTROL_UUID,
        BT_AV_REMOTE_CONTROL_TARGET_UUID,
        BT_HANDSFREE_AUDIO_GATEWAY_UUID,
        BT_HANDSFREE_UUID,
        BT_PHONEBOOK_ACCESS_CLIENT_UUID,
        BT_PHONEBOOK_ACCESS_SERVER_UUID,
        BT_SERIAL_PORT_UUID,
        BT_PNP_INFORMATION_UUID,
    };
    // Assigned 16-bit numbers of the services, each placed into the base UUID.
    const std::vector<std::string> assigned = {"0000", "110B", "110A", "1801", "110E", "110C",
                                               "111F", "111E", "112E", "112F", "1101", "1200"};
    ASSERT_EQ(uuids.size(), assigned.size());
    for (size_t i = 0; i < uuids.size(); ++i) {
        EXPECT_EQ(uuids[i], "0000" + assigned[i] + "-0000-1000-8000-00805F9B34FB");
    }
}

TEST(ShareConstantsTest, ListsKeepTheirOrderAndDistinctValues)
{
    EXPECT_EQ(SPECIAL_FILE_EXTENSIONS, (std::vector<std::string>{".divx", ".mpg4", ".mpo", ".swf"}));
    const std::vector<std::string> radarKeys = {RADAR_ORG_PKG,
                                                RADAR_FUNC,
                                                RADAR_TRIGGER_MODE,
                                                RADAR_COMM_SERV,
                                                RADAR_BIZ_SCENE,
                                                RADAR_BIZ_STAGE,
                                                RADAR_TO_CALL_PKG,
                                                RADAR_LOCAL_SESS_NAME,
                                                RADAR_LOCAL_UDID,
                                                RADAR_LOCAL_DEV_TYPE,
                                                RADAR_LOCAL_BLE_STATE,
                                                RADAR_LOCAL_WIFI_STATE,
                                                RADAR_PEER_SESS_NAME,
                                                RADAR_PEER_UDID,
                                                RADAR_PEER_DEV_TYPE,
                                                RADAR_PEER_BLE_MAC,
                                                RADAR_PEER_NET_ID,
                                                RADAR_PEER_NEARBY_VERSION,
                                                RADAR_PEER_DEVICE_VERSION,
                                                RADAR_IS_TRUST,
                                                RADAR_ACCOUNT_TYPE,
                                                RADAR_CONTACT_SHARE,
                                                RADAR_IS_MANY_SHARE,
                                                RADAR_STAGE_RES,
                                                RADAR_ERROR_CODE,
                                                RADAR_CH_TYPE,
                                                RADAR_FILE_SIZE,
                                                RADAR_FILE_NUM,
                                                RADAR_FILE_TYPE,
                                                RADAR_NET_TYPE,
                                                RADAR_TRANS_RATE,
                                                RADAR_BIZ_STATE,
                                                RADAR_CONTACT_FOUND,
                                                RADAR_CONTACT_MISIDENTIFICATION_TYPE,
                                                RADAR_CONTACT_SHARE_SEND_DEVICE_COUNTS,
                                                RADAR_SHARE_DETECT_TYPE_IN_RECV,
                                                RADAR_DEVICE_ENHANCE_VERIFY_TYPE,
                                                RADAR_CONSUMED_TIME,
                                                RADAR_CONCURRENT_ID};
    EXPECT_EQ(std::set<std::string>(radarKeys.begin(), radarKeys.end()).size(), 39u);
    for (const std::string& key : radarKeys) {
        // Event field keys are upper-case words joined by underscores.
        EXPECT_TRUE(std::all_of(key.begin(), key.end(), [](char c) { return std::isupper(c) || c == '_'; })) << key;
    }
    EXPECT_EQ(EAP_METHOD_AKA_PRIME, EAP_METHOD_AKA + "'");
    EXPECT_EQ(SETTINGS_DATA_URI.substr(SETTINGS_DATA_URI.size() - USER_SETTINGS_URI_SUFFIX.size()),
              USER_SETTINGS_URI_SUFFIX);
}

} // namespace
} // namespace Zelkon
} // namespace OHOS
