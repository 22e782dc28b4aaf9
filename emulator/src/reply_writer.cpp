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

#include "reply_writer.h"

#include "emulator_log.h"
#include "field_text.h"

namespace OHOS {
namespace Zelkon {

bool ReplyWriter::Check(const char* field, bool written, const std::string& value)
{
    if (!written) {
        EMULATOR_LOGE("reply write of %{public}s failed", field);
        failed_ = true;
        return false;
    }
    decoded_.replyFields.emplace_back(prefix_ + field, value);
    return true;
}

bool ReplyWriter::Int32(const char* field, int32_t value)
{
    return !failed_ && Check(field, reply_.WriteInt32(value), std::to_string(value));
}

bool ReplyWriter::Uint32(const char* field, uint32_t value)
{
    return !failed_ && Check(field, reply_.WriteUint32(value), std::to_string(value));
}

bool ReplyWriter::Int64(const char* field, int64_t value)
{
    return !failed_ && Check(field, reply_.WriteInt64(value), std::to_string(value));
}

bool ReplyWriter::Bool(const char* field, bool value)
{
    return !failed_ && Check(field, reply_.WriteBool(value), value ? "true" : "false");
}

bool ReplyWriter::String(const char* field, const std::string& value)
{
    return !failed_ && Check(field, reply_.WriteString(value), QuotedText(value));
}

bool ReplyWriter::RemoteObject(const char* field, const sptr<IRemoteObject>& object)
{
    return !failed_ && Check(field, reply_.WriteRemoteObject(object), ObjectText(object));
}

bool ReplyWriter::BigString(const char* field, const std::string& value)
{
    const auto size = static_cast<uint32_t>(value.size() + 1);
    if (failed_ || !Check("size", reply_.WriteUint32(size), std::to_string(size))) {
        return false;
    }
    if (value.empty()) {
        return true;
    }
    return Check(field, reply_.WriteRawData(value.c_str(), size), QuotedText(value));
}

void ReplyWriter::MakeRoom(size_t bytes)
{
    reply_.SetMaxCapacity(reply_.GetMaxCapacity() + bytes);
}

void ReplyWriter::CutLastBytes(size_t bytes)
{
    const size_t size = reply_.GetDataSize();
    const size_t kept = size > bytes ? size - bytes : 0;
    reply_.SetDataSize(kept);
    Note("reply cut", std::to_string(size - kept) + " bytes dropped from its end");
}

void ReplyWriter::Note(const std::string& what, const std::string& value)
{
    decoded_.notes.emplace_back(what, value);
}

} // namespace Zelkon
} // namespace OHOS
