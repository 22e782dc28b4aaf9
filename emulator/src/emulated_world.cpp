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
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>
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

std::optional<EmulatedWorld> EmulatedWorld::FromStream(int fd, std::string& error)
{
    // A world is a few records and a preview text; more is a mistake, such as a device given as the file.
    constexpr size_t MAX_WORLD_TEXT = 64 * 1024 * 1024;
    constexpr size_t READ_CHUNK = 64 * 1024;
    std::string text;
    std::vector<char> chunk(READ_CHUNK);
    for (;;) {
        const ssize_t count = read(fd, chunk.data(), chunk.size());
        if (count < 0 && errno == EINTR) {
            continue;
        }
        if (count < 0) {
            error = std::string("cannot be read: ") + std::strerror(errno);
            return std::nullopt;
        }
        if (count == 0) {
            return FromJson(text, error);
        }
        text.append(chunk.data(), static_cast<size_t>(count));
        if (text.size() > MAX_WORLD_TEXT) {
            error = "larger than " + std::to_string(MAX_WORLD_TEXT) + " bytes";
            return std::nullopt;
        }
    }
}

std::optional<EmulatedWorld> EmulatedWorld::FromFile(const std::string& path, std::string& error)
{
    // Opened without waiting: opening a FIFO waits for a writer, which may never come.
    const int fd = open(path.c_str(), O_RDONLY | O_NONBLOCK | O_CLOEXEC);
    if (fd < 0) {
        error = std::string("cannot be opened: ") + std::strerror(errno);
        return std::nullopt;
    }
    struct stat status {};
    std::optional<EmulatedWorld> world;
    if (fstat(fd, &status) != 0 || !S_ISREG(status.st_mode)) {
        error = "not a regular file";
    } else {
        world = FromStream(fd, error);
    }
    close(fd);
    return world;
}

std::string EmulatedWorld::ToJson() const
{
    constexpr int INDENT = 2;
    return JsonFieldWriter::Write(*this).dump(INDENT, ' ', false, nlohmann::json::error_handler_t::replace);
}

} // namespace Zelkon
} // namespace OHOS
