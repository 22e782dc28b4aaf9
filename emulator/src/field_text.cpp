#include "field_text.h"

namespace OHOS {
namespace Zelkon {
namespace {
constexpr size_t SHOWN_TEXT_LENGTH = 40;
} // namespace

std::string QuotedText(const std::string& text)
{
    if (text.size() <= SHOWN_TEXT_LENGTH) {
        return "\"" + text + "\"";
    }
    return "\"" + text.substr(0, SHOWN_TEXT_LENGTH) + "...\" (" + std::to_string(text.size()) + " bytes)";
}

std::string ObjectText(const sptr<IRemoteObject>& object)
{
    if (object == nullptr) {
        return "null object";
    }
    const std::u16string descriptor = object->GetObjectDescriptor();
    std::string name;
    for (char16_t unit : descriptor) {
        name.push_back(unit < 0x80 ? static_cast<char>(unit) : '?');
    }
    return std::string(object->IsProxyObject() ? "remote " : "local ") + (name.empty() ? "object" : name);
}

} // namespace Zelkon
} // namespace OHOS
