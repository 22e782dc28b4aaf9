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

#ifndef SHARE_CONNECTIVITY_CONSTANTS_H
#define SHARE_CONNECTIVITY_CONSTANTS_H

#include <string>

namespace OHOS {
namespace Zelkon {

// Bluetooth service class UUIDs.
const std::string BT_BASE_UUID = "00000000-0000-1000-8000-00805F9B34FB";
const std::string BT_AUDIO_SINK_UUID = "0000110B-0000-1000-8000-00805F9B34FB";
const std::string BT_AUDIO_SOURCE_UUID = "0000110A-0000-1000-8000-00805F9B34FB";
const std::string BT_GENERIC_ATTRIBUTE_UUID = "00001801-0000-1000-8000-00805F9B34FB";
const std::string BT_AV_REMOTE_CONTROL_UUID = "0000110E-0000-1000-8000-00805F9B34FB";
const std::string BT_AV_REMOTE_CONTROL_TARGET_UUID = "0000110C-0000-1000-8000-00805F9B34FB";
const std::string BT_HANDSFREE_AUDIO_GATEWAY_UUID = "0000111F-0000-1000-8000-00805F9B34FB";
const std::string BT_HANDSFREE_UUID = "0000111E-0000-1000-8000-00805F9B34FB";
const std::string BT_PHONEBOOK_ACCESS_CLIENT_UUID = "0000112E-0000-1000-8000-00805F9B34FB";
const std::string BT_PHONEBOOK_ACCESS_SERVER_UUID = "0000112F-0000-1000-8000-00805F9B34FB";
const std::string BT_SERIAL_PORT_UUID = "00001101-0000-1000-8000-00805F9B34FB";
const std::string BT_PNP_INFORMATION_UUID = "00001200-0000-1000-8000-00805F9B34FB";

const std::string NULL_MAC_ADDRESS = "00:00:00:00:00:00";
const std::string EMPTY_STRING = "";

const std::string DEVICE_TYPE_UNKNOWN = "UNKNOWN";
const std::string DEVICE_TYPE_PHONE = "PHONE";
const std::string DEVICE_TYPE_PAD = "PAD";
const std::string DEVICE_TYPE_TV = "TV";
const std::string DEVICE_TYPE_CAR = "CAR";
const std::string DEVICE_TYPE_WATCH = "WATCH";
const std::string DEVICE_TYPE_WIFI_CAMERA = "WiFiCamera";
const std::string DEVICE_TYPE_PC = "PC";
const std::string DEVICE_TYPE_SMART_DISPLAY = "SMART_DISPLAY";
const std::string DEVICE_TYPE_2IN1 = "2IN1";

const std::string KEY_MGMT_NONE = "NONE";
const std::string KEY_MGMT_WEP = "WEP";
const std::string KEY_MGMT_WPA_PSK = "WPA-PSK";
const std::string KEY_MGMT_SAE = "SAE";
const std::string KEY_MGMT_EAP = "WPA-EAP";
const std::string KEY_MGMT_SUITE_B_192 = "WPA-EAP-SUITE-B-192";
const std::string KEY_MGMT_WAPI_CERT = "WAPI-CERT";
const std::string KEY_MGMT_WAPI_PSK = "WAPI-PSK";
const std::string KEY_MGMT_WAPI = "WAPI";

const std::string EAP_METHOD_NONE = "NONE";
const std::string EAP_METHOD_PEAP = "PEAP";
const std::string EAP_METHOD_TLS = "TLS";
const std::string EAP_METHOD_TTLS = "TTLS";
const std::string EAP_METHOD_PWD = "PWD";
const std::string EAP_METHOD_SIM = "SIM";
const std::string EAP_METHOD_AKA = "AKA";
const std::string EAP_METHOD_AKA_PRIME = "AKA'";

} // namespace Zelkon
} // namespace OHOS

#endif // SHARE_CONNECTIVITY_CONSTANTS_H
