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
 * Writes one reply's fields with the parcel's own primitives and notes each one, by name, for the trace. A write
 * that fails marks the reply as broken; later writes then fail at once.
 */
#ifndef REPLY_WRITER_H
#define REPLY_WRITER_H

#include <cstdint>
#include <string>

#include "decoded_request.h"
#include "message_parcel.h"

namespace OHOS {
namespace Zelkon {

class ReplyWriter {
public:
    ReplyWriter(MessageParcel& reply, DecodedRequest& decoded) : reply_(reply), decoded_(decoded) {}

    bool Int32(const char* field, int32_t value);
    bool Uint32(const char* field, uint32_t value);
    bool Int64(const char* field, int64_t value);
    bool Bool(const char* field, bool value);
    bool String(const char* field, const std::string& value);
    bool RemoteObject(const char* field, const sptr<IRemoteObject>& object);
    // A uint32 size word (length plus one), then the text and its zero byte as one raw block.
    bool BigString(const char* field, const std::string& value);
    // Lets a record as large as its texts fit: the parcel's limit only ever rises.
    void MakeRoom(size_t bytes);
    // Drops the reply's last bytes, as a hostile service would.
    void CutLastBytes(size_t bytes);
    // Notes what the emulator did, apart from the wire's fields.
    void Note(const std::string& what, const std::string& value);
    // Names the fields that follow as those of a list's record ("users[0]."); empty ends the record.
    void SetRecordPrefix(std::string prefix) { prefix_ = std::move(prefix); }

    bool Failed() const { return failed_; }

private:
    bool Check(const char* field, bool written, const std::string& value);

    MessageParcel& reply_;
    DecodedRequest& decoded_;
    std::string prefix_;
    bool failed_ = false;
};

} // namespace Zelkon
} // namespace OHOS

#endif // REPLY_WRITER_H
