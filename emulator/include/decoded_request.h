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
 * One request as an emulated service saw it: what it decoded field by field, what it answered, what it noted
 * beside the wire (what it did, what it found behind a descriptor, a fault it played), and the bytes of both
 * parcels, for traces and tests. Fields of a list's records carry their index ("users[1].deviceId").
 */
#ifndef DECODED_REQUEST_H
#define DECODED_REQUEST_H

#include <cstdint>
#include <functional>
#include <string>
#include <utility>
#include <vector>

namespace OHOS {
namespace Zelkon {

struct DecodedRequest {
    using Fields = std::vector<std::pair<std::string, std::string>>;

    std::string service;
    uint32_t code = 0;
    // Empty for a code that the service does not know.
    std::string operation;
    Fields fields;
    Fields replyFields;
    // The emulator's own notes: not on the wire.
    Fields notes;
    // What the caller's SendRequest returns: 0, or the error that refused the request.
    int result = 0;
    std::vector<uint8_t> requestBytes;
    std::vector<uint8_t> replyBytes;
};

using TraceSink = std::function<void(const DecodedRequest&)>;

} // namespace Zelkon
} // namespace OHOS

#endif // DECODED_REQUEST_H
