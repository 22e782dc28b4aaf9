#include "field_text.h"

#include <cstdio>

namespace OHOS {
namespace Zelkon {
namespace {
constexpr size_t SHOWN_TEXT_LENGTH = 40;

// Control characters would break the one-line form of a traced field.
std::string Printable(const std::string& text)
{
    std::string shown;
    for (unsigned char c : text) {
        if (c == '\n') {
            shown += "\\n";
        } else if (c < 0x20 || c == 0x7f) {
            char escaped[8];
            std::snprintf(escaped, sizeof(escaped), "\\x%02x", c);
            shown += escaped;
        } else {
            shown.push_back(static_cast<char>(c));
        }
    }
    return shown;
}
} // namespace

std::string QuotedText(const std::string& text)
{
    if (text.size() <= SHOWN_TEXT_LENGTH) {
        return "\"" + Printable(text) + "\"";
    }
    return "\"" + Printable(text.substr(0, SHOWN_TEXT_LENGTH)) + "...\" (" + std::to_string(text.size()) + " bytes)";
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
