#ifndef SHARE_PATH_CONSTANTS_H
#define SHARE_PATH_CONSTANTS_H

#include <string>

namespace OHOS {
namespace Zelkon {

const std::string SETTINGS_DEVICE_NAME_CONNECT = "device_name_connect";
const std::string TEXT_PLACEHOLDER_1 = "%1$s";
const std::string TEXT_PLACEHOLDER_2 = "%2$s";
const std::string LOCAL_DOCS_DIR = "/account/device_view/local/files/Docs/";
const std::string LOCAL_DOCS_URI_PREFIX = "file://docs/storage/Users/currentUser/";

} // namespace Zelkon
} // namespace OHOS

#endif // SHARE_PATH_CONSTANTS_H
