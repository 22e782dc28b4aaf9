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

#include "emulated_world.h"

#include <cerrno>
#include <cstring>
#include <fstream>
#include <vector>

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

std::optional<EmulatedWorld> EmulatedWorld::FromFile(const std::string& path, std::string& error)
{
    // A world is a few records and a preview text; more is a mistake, such as a device given as the file.
    constexpr size_t MAX_WORLD_FILE = 64 * 1024 * 1024;
    constexpr size_t READ_CHUNK = 64 * 1024;
    std::ifstream file(path, std::ios::binary);
    std::string text;
    std::vector<char> chunk(READ_CHUNK);
    while (file && (file.read(chunk.data(), static_cast<std::streamsize>(chunk.size())) || file.gcount() > 0)) {
        text.append(chunk.data(), static_cast<size_t>(file.gcount()));
        if (text.size() > MAX_WORLD_FILE) {
            error = "larger than " + std::to_string(MAX_WORLD_FILE) + " bytes";
            return std::nullopt;
        }
    }
    if (!file.is_open() || file.bad()) {
        error = std::string("cannot be read: ") + std::strerror(errno);
        return std::nullopt;
    }
    return FromJson(text, error);
}

std::string EmulatedWorld::ToJson() const
{
    constexpr int INDENT = 2;
    return JsonFieldWriter::Write(*this).dump(INDENT, ' ', false, nlohmann::json::error_handler_t::replace);
}

} // namespace Zelkon
} // namespace OHOS
