#ifndef UTILS_STRING_EX_H
#define UTILS_STRING_EX_H

#include <string>

namespace OHOS {

// UTF-8 to UTF-16 and back; malformed input gives an empty string, as on the platform.
std::u16string Str8ToStr16(const std::string& str);
std::string Str16ToStr8(const std::u16string& str16);

} // namespace OHOS

#endif // UTILS_STRING_EX_H
