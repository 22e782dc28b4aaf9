/*
 * Copyright (c) 2026 The libshare_client Authors.
 * Licensed under the Apache License, Version 2.0 (the "License");
 * you may not use this file except in compliance with the License.
 * You may obtain a copy of the License at
 *
 *     http://www.apache.org/licenses/LICENSE-2.0
 *
 * Unless required by applicable law or agreed to in writing, software
 * distributed under the License is distributed on an "AS IS" BASIS,
 * WITHOUT WARRANTIES OR CONDITIONS OF ANY KIND, either express or implied.
 * See the License for the specific language governing permissions and
 * limitations under the License.
 */

/*
 * Constants shared with the share service: settings keys and system parameters, bundle names, message keys and
 * data types. Every source file of the library includes this header.
 */
#ifndef SHARE_COMMON_CONSTANTS_H
#define SHARE_COMMON_CONSTANTS_H

#include <map>
#include <string>
#include <vector>

namespace OHOS {
namespace Zelkon {

const std::string STATUS_CONFIG_PATH = "/data/service/el1/public/zelkon/sta.cfg";
const std::string DISCONNECT_COMMAND = "disconnect";
const std::string INTERCONNECTION_SERVICE_ID = "ohos.InterConnection.zelkon";
const std::string SETTINGS_DATA_URI = "datashare:///com.ohos.settingsdata/entry/settingsdata/SETTINGSDATA?Proxy=true";
const std::string USER_SETTINGS_SECURE_URI_PREFIX =
    "datashare:///com.ohos.settingsdata/entry/settingsdata/USER_SETTINGSDATA_SECURE_";
const std::string USER_SETTINGS_URI_SUFFIX = "?Proxy=true";
const std::string SETTINGS_KEY_COLUMN = "KEYWORD";
const std::string SETTINGS_VALUE_COLUMN = "VALUE";
const std::string SETTINGS_DEVICE_NAME = "settings.general.device_name";
const std::string SETTINGS_USER_DEFINED_DEVICE_NAME = "settings.general.user_defined_device_name";
const std::string SETTINGS_MIGRATED_DEVICE_NAME = "settings.general.migrated_device_name";
const std::string PARAM_RETAIL_MODE = "const.dfx.enable_retail";
const std::string PARAM_CONTACT_DEBUG = "persist.kavrel.contact.debug";
const std::string KEY_DELETE_FLAG = "kavrel.delete.key.flag";
const std::string PARAM_DATAFILES_TRANS_CTRL = "persist.distributed_scene.datafiles_trans_ctrl";
// The first 14 upper-case hex digits of the SHA-256 of the text "0".
const std::string PLACEHOLDER_ACCOUNT_HASH = "5FECEB66FFC86F";
const std::string ZERO_ACCOUNT_HASH = "00000000000000";
const std::string INLINE_IMAGE_PREFIX = "data:image/";
const std::string BASE64_SEPARATOR = ";base64,";
const std::string KEY_MIME_TYPE = "mineType";
const std::string KEY_PACKAGE_NAME = "packageName";
const std::string KEY_BUNDLE_NAME = "bundleName";
const std::string KEY_SIGNATURE = "signature";
const std::map<std::string, std::string> NEW_TO_OLD_BUNDLE_NAMES = {
    {"com.norvane.tirmo.calendar", "com.norvane.calendar"},
    {"com.norvane.tirmo.notepad", "com.norvane.notepad"},
};
const std::map<std::string, std::string> DATA_TYPE_TO_MIME_TYPE = {
    {"general.calendar", "text\\/x-vcalendar"},
};
const std::map<std::string, std::string> OLD_TO_NEW_BUNDLE_NAMES = {
    {"com.norvane.calendar", "com.norvane.tirmo.calendar"},
    {"com.norvane.notepad", "com.norvane.tirmo.notepad"},
    {"com.norvane.quibba", "com.norvane.tirmo.quibba"},
    {"com.norvane.contacts", "com.norvane.tirmo.contacts"},
};
const std::map<std::string, std::string> MIME_TYPE_TO_DATA_TYPE = {
    {"text\\/x-vcalendar", "general.calendar"},
};
const std::string MEDIUM_BLE = "BLE";
const std::string MEDIUM_COAP = "CoAP";
const std::string MSG_KEY_ACTION = "Action";
const std::string MSG_KEY_SENDER = "sender";
const std::string MSG_KEY_SENDER_NAME = "senderName";
const std::string MSG_KEY_SENDER_NAME_TYPE = "senderNameType";
const std::string MSG_KEY_DEVICE_NAME = "deviceName";
const std::string MSG_KEY_NICK_NAME = "nickName";
const std::string MSG_KEY_SERVICE_CODE = "serviceCode";
const std::string MSG_KEY_DEV_HASH = "devHash";
const std::string MSG_KEY_CUST_DATA = "custData";
const std::string MSG_KEY_ACTION_ID = "actionId";
const std::string MSG_KEY_SHARE_STATE = "shareState";
const std::string MSG_KEY_CONCURRENT_ID = "concurrentId";
const std::string MSG_KEY_SHARE_BUSY = "shareBusy";
const std::string UDMF_FOLDER = "general.folder";
const std::string UDMF_FILE = "general.file";
const std::string UDMF_IMAGE = "general.image";
const std::string UDMF_VIDEO = "general.video";
const std::string PICKER_DATASOURCE_URI = "systemShare.datasource.uri";
const std::string PICKER_SUMMARY = "ability.picker.summary";
const std::string PICKER_PHOTOS_ORDER = "photosDataShare.order";
const std::string PICKER_PHOTOS_ORDER_BY = "photosDataShare.orderBy";
const std::string PICKER_KEY_SUMMARY = "summary";
const std::string PICKER_KEY_TOTAL_SIZE = "totalSize";
const std::string PICKER_KEY_TOTAL_COUNT = "totalCount";
const std::string DLP_FILE_EXTENSION = ".dlp";
const std::vector<std::string> SPECIAL_FILE_EXTENSIONS = {".divx", ".mpg4", ".mpo", ".swf"};
const std::string SWITCH_ON = "1";
const std::string SWITCH_OFF = "0";
const std::string AIR_SHARE_SWITCH_KEY = "item_air_share_switch";
const std::string AIR_SHARE_SWITCH_VALUE_0 = "0";
const std::string AIR_SHARE_SWITCH_VALUE_1 = "1";
const std::string AIR_SHARE_SWITCH_VALUE_2 = "2";
const std::string TRIGGER_KNOCK_SHARE = "knockShare";
const std::string TRIGGER_SWING_SHARE = "swingShare";
const std::string TRIGGER_GESTURE_SHARE = "gestureShare";
const std::string TRIGGER_GESTURES_SHARE = "gesturesShare";
const std::string SHARE_API_DISCONNECT_REQUEST = "disconVxShareApiServiceEx";
const std::string LARGE_PICTURE_BROWSING_STATUS_KEY = "large_picture_browsing_status";
const std::string GRAB_SCREEN_CAPTURE_SWITCH_KEY = "item_grab_screen_capture_switch";
const std::string UNSET_VALUE = "-1";
const std::map<std::string, int> TRIGGER_CODES = {
    {"knockShare", 2},
    {"gesturesShare", 3},
};
const std::string NAME_BRACKET_OPEN = "(";
const std::string NAME_BRACKET_CLOSE = ")";
const std::string MSG_KEY_SAVE_PATH = "savePath";
const std::string MSG_KEY_APP_NAME = "appName";

} // namespace Zelkon
} // namespace OHOS

#endif // SHARE_COMMON_CONSTANTS_H
