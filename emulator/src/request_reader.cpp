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

#include "request_reader.h"

#include <cstring>

#include "emulator_log.h"
#include "field_text.h"

namespace OHOS {
namespace Zelkon {

bool RequestReader::Fail(const char* field, const char* what)
{
    if (!failed_) {
        EMULATOR_LOGE("malformed request: %{public}s %{public}s", field, what);
        Decoded(field, std::string("<") + what + ">");
    }
    failed_ = true;
    return false;
}

void RequestReader::Note(const std::string& what, const std::string& value)
{
    decoded_.notes.emplace_back(prefix_ + what, value);
}

void RequestReader::Decoded(const char* field, const std::string& value)
{
    decoded_.fields.emplace_back(prefix_ + field, value);
}

std::string RequestReader::Text(const std::string& value)
{
    return QuotedText(value);
}

bool RequestReader::RemoteObject(const char* field, sptr<IRemoteObject>& object)
{
    if (failed_) {
        return false;
    }
    object = data_.ReadRemoteObject();
    if (object == nullptr) {
        return Fail(field, "no remote object");
    }
    Decoded(field, ObjectText(object));
    return true;
}

bool RequestReader::FileDescriptor(const char* field, UniqueFd& fd)
{
    if (failed_) {
        return false;
    }
    fd = UniqueFd(data_.ReadFileDescriptor());
    if (fd.Get() < 0) {
        return Fail(field, "no file descriptor");
    }
    Decoded(field, "fd " + std::to_string(fd.Get()));
    return true;
}

bool RequestReader::BigString(const char* field, std::string& value, uint32_t maxSize)
{
    uint32_t size = 0;
    if (failed_ || !data_.ReadUint32(size)) {
        return Fail(field, "truncated");
    }
    if (size > maxSize) {
        return Fail(field, "size too large");
    }
    value.clear();
    if (size > 1) {
        const auto* block = static_cast<const char*>(data_.ReadRawData(size));
        if (block == nullptr) {
            return Fail(field, "raw data missing");
        }
        if (block[size - 1] != '\0') {
            return Fail(field, "raw data not terminated");
        }
        value.assign(block, strnlen(block, size));
    }
    Decoded(field, QuotedText(value));
    return true;
}

bool RequestReader::Count(const char* field, uint32_t& count, size_t minRecordBytes, uint32_t maxCount)
{
    if (failed_ || !data_.ReadUint32(count)) {
        return Fail(field, "truncated");
    }
    if (count > maxCount || static_cast<size_t>(count) * minRecordBytes > data_.GetReadableBytes()) {
        EMULATOR_LOGE("hostile count %{public}u of %{public}s", count, field);
        return Fail(field, "hostile count");
    }
    Decoded(field, std::to_string(count));
    return true;
}

} // namespace Zelkon
} // namespace OHOS
