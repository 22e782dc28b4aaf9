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

/*
 * Reads one request's fields with the parcel's own primitives and notes each one, by name, for the trace. The
 * first read that runs out of data marks the request as malformed; later reads then fail at once.
 */
#ifndef REQUEST_READER_H
#define REQUEST_READER_H

#include <cstdint>
#include <string>

#include "decoded_request.h"
#include "message_parcel.h"
#include "parcel.h"
#include "unique_fd.h"

namespace OHOS {
namespace Zelkon {

class RequestReader {
public:
    RequestReader(MessageParcel& data, DecodedRequest& decoded) : data_(data), decoded_(decoded) {}

    bool Int32(const char* field, int32_t& value) { return Primitive(field, value, &Parcel::ReadInt32); }
    bool Uint32(const char* field, uint32_t& value) { return Primitive(field, value, &Parcel::ReadUint32); }
    bool Int64(const char* field, int64_t& value) { return Primitive(field, value, &Parcel::ReadInt64); }
    bool Int8(const char* field, int8_t& value) { return Primitive(field, value, &Parcel::ReadInt8); }
    bool Bool(const char* field, bool& value) { return Primitive(field, value, &Parcel::ReadBool); }
    bool String(const char* field, std::string& value) { return Primitive(field, value, &Parcel::ReadString); }
    bool RemoteObject(const char* field, sptr<IRemoteObject>& object);
    bool FileDescriptor(const char* field, UniqueFd& fd);
    // A uint32 size word (length plus one) and a raw block ending in a zero byte; a size above maxSize is hostile.
    bool BigString(const char* field, std::string& value, uint32_t maxSize);
    // A uint32 count of records that each take at least minRecordBytes: a count that the remaining data cannot
    // hold, or above maxCount, is hostile.
    bool Count(const char* field, uint32_t& count, size_t minRecordBytes, uint32_t maxCount);
    // Notes what the emulator found or did, apart from the wire's fields.
    void Note(const std::string& what, const std::string& value);
    // Names the fields that follow as those of a list's record ("sendBean.files[0]."); empty ends the record.
    void SetRecordPrefix(std::string prefix) { prefix_ = std::move(prefix); }

    bool Failed() const { return failed_; }

private:
    // A value the parcel reads in one step, noted as its text.
    template <typename Value>
    bool Primitive(const char* field, Value& value, bool (Parcel::*read)(Value&))
    {
        if (failed_ || !(data_.*read)(value)) {
            return Fail(field, "truncated");
        }
        Decoded(field, Text(value));
        return true;
    }
    static std::string Text(bool value) { return value ? "true" : "false"; }
    static std::string Text(const std::string& value);
    template <typename Integer>
    static std::string Text(Integer value)
    {
        return std::to_string(value);
    }

    bool Fail(const char* field, const char* what);
    void Decoded(const char* field, const std::string& value);

    MessageParcel& data_;
    DecodedRequest& decoded_;
    std::string prefix_;
    bool failed_ = false;
};

} // namespace Zelkon
} // namespace OHOS

#endif // REQUEST_READER_H
