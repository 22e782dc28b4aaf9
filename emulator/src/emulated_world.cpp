#include "emulated_world.h"
#include "emulated_record_fields.h"
#include "json_field_reader.h"
#include "json_field_writer.h"

namespace OHOS {
namespace Zelkon {

std::optional<EmulatedWorld> EmulatedWorld::FromJson(const std::string& text, std::string& error)
{
    try {
        EmulatedWorld world = BuiltIn();
        JsonFieldReader::Read(ParseJsonText(text), "", world);
        return world;
    } catch (const JsonFieldError& refusal) {
        error = refusal.what();
        return std::nullopt;
    }
}

std::string EmulatedWorld::ToJson() const
{
    constexpr int INDENT = 2;
    return JsonFieldWriter::Write(*this).dump(INDENT, ' ', false, nlohmann::json::error_handler_t::replace);
}

} // namespace Zelkon
} // namespace OHOS
