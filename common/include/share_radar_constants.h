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

#ifndef SHARE_RADAR_CONSTANTS_H
#define SHARE_RADAR_CONSTANTS_H

#include <string>

namespace OHOS {
namespace Zelkon {

// The behaviour event through which every share stage is reported, and its field keys.
const std::string SHARE_RADAR_BEHAVIOR = "SHARE_RADAR_BEHAVIOR";
const std::string RADAR_ORG_PKG = "ORG_PKG";
const std::string RADAR_FUNC = "FUNC";
const std::string RADAR_TRIGGER_MODE = "TRIGGER_MODE";
const std::string RADAR_COMM_SERV = "COMM_SERV";
const std::string RADAR_BIZ_SCENE = "BIZ_SCENE";
const std::string RADAR_BIZ_STAGE = "BIZ_STAGE";
const std::string RADAR_TO_CALL_PKG = "TO_CALL_PKG";
const std::string RADAR_LOCAL_SESS_NAME = "LOCAL_SESS_NAME";
const std::string RADAR_LOCAL_UDID = "LOCAL_UDID";
const std::string RADAR_LOCAL_DEV_TYPE = "LOCAL_DEV_TYPE";
const std::string RADAR_LOCAL_BLE_STATE = "LOCAL_BLE_STATE";
const std::string RADAR_LOCAL_WIFI_STATE = "LOCAL_WIFI_STATE";
const std::string RADAR_PEER_SESS_NAME = "PEER_SESS_NAME";
const std::string RADAR_PEER_UDID = "PEER_UDID";
const std::string RADAR_PEER_DEV_TYPE = "PEER_DEV_TYPE";
const std::string RADAR_PEER_BLE_MAC = "PEER_BLE_MAC";
const std::string RADAR_PEER_NET_ID = "PEER_NET_ID";
const std::string RADAR_PEER_NEARBY_VERSION = "PEER_NEARBY_VERSION";
const std::string RADAR_PEER_DEVICE_VERSION = "PEER_DEVICE_VERSION";
const std::string RADAR_IS_TRUST = "IS_TRUST";
const std::string RADAR_ACCOUNT_TYPE = "ACCOUNT_TYPE";
const std::string RADAR_CONTACT_SHARE = "CONTACT_SHARE";
const std::string RADAR_IS_MANY_SHARE = "IS_MANY_SHARE";
const std::string RADAR_STAGE_RES = "STAGE_RES";
const std::string RADAR_ERROR_CODE = "ERROR_CODE";
const std::string RADAR_CH_TYPE = "CH_TYPE";
const std::string RADAR_FILE_SIZE = "FILE_SIZE";
const std::string RADAR_FILE_NUM = "FILE_NUM";
const std::string RADAR_FILE_TYPE = "FILE_TYPE";
const std::string RADAR_NET_TYPE = "NET_TYPE";
const std::string RADAR_TRANS_RATE = "TRANS_RATE";
const std::string RADAR_BIZ_STATE = "BIZ_STATE";
const std::string RADAR_CONTACT_FOUND = "CONTACT_FOUND";
const std::string RADAR_CONTACT_MISIDENTIFICATION_TYPE = "CONTACT_MISIDENTIFICATION_TYPE";
const std::string RADAR_CONTACT_SHARE_SEND_DEVICE_COUNTS = "CONTACT_SHARE_SEND_DEVICE_COUNTS";
const std::string RADAR_SHARE_DETECT_TYPE_IN_RECV = "SHARE_DETECT_TYPE_IN_RECV";
const std::string RADAR_DEVICE_ENHANCE_VERIFY_TYPE = "DEVICE_ENHANCE_VERIFY_TYPE";
const std::string RADAR_CONSUMED_TIME = "CONSUMED_TIME";
const std::string RADAR_CONCURRENT_ID = "CONCURRENT_ID";

const std::string RADAR_ORIGIN_PACKAGE = "zelkon";
const std::string DEVICE_TYPE_CODE_PHONE = "00E";
const std::string DEVICE_TYPE_CODE_PC = "00C";
const std::string DEVICE_TYPE_CODE_TABLET = "011";
const std::string DEVICE_TYPE_CODE_TV = "09C";
const std::string DEVICE_TYPE_CODE_CAR = "083";
const std::string PEER_VERSION_WIN_PC = "WinPC 1.0";
const std::string SOFT_BUS_NAME = "dsoftbus";

} // namespace Zelkon
} // namespace OHOS

#endif // SHARE_RADAR_CONSTANTS_H
