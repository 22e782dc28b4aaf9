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
 * The 62 operations of both services as one table: the name `call` takes, the service and request code that carry
 * it, its arguments with their types, its request and reply as the wire carries them, and how sharectl calls it
 * through the library and decodes the result. list, describe and call all read it. The codes and layouts are
 * documentation for people; the emulator decodes the wire on its own.
 */
#ifndef OPERATION_H
#define OPERATION_H

#include <cstdint>
#include <string>
#include <vector>

#include <nlohmann/json.hpp>

#include "demo_remotes.h"

namespace OHOS {
namespace Zelkon {

enum class ServiceKind { SHARE, MANAGER };

enum class ArgumentType {
    INT32,
    UINT32,
    BOOL,
    STRING,
    SHARE_DEVICE_INFO,
    SEND_BEAN,
    DATA_BEAN,
    BYTES_INFO,
    COMMON_SHARE_OBJECT,
    SHARE_DEVICE,
    TRANSMIT_PARAM,
    // A listener or callback: sharectl passes its own local stub.
    LOCAL_STUB,
};

struct Argument {
    const char* name;
    ArgumentType type;
    // The interface of a LOCAL_STUB.
    const char* interfaceName = nullptr;
};

// A result as JSON, and what it means where the value alone would mislead ("1" that is "accepted").
struct CallOutcome {
    nlohmann::ordered_json value;
    std::string meaning;

    // "1 (accepted)".
    std::string Text() const;
};

class CallArguments;

struct Operation {
    // As `call` takes it: the client's name, prefixed with its service where both services have that name.
    const char* name;
    ServiceKind service;
    uint32_t code;
    std::vector<Argument> arguments;
    // What the client returns.
    const char* result;
    // The request after the interface token, and the reply.
    std::string request;
    std::string reply;
    CallOutcome (*call)(const CallArguments& arguments, LocalRemotes& remotes);
};

const std::vector<Operation>& ShareServiceOperations();
const std::vector<Operation>& ShareManagerOperations();
// The share service's, then the share manager service's, each by request code.
std::vector<const Operation*> AllOperations();
// Throws UsageError for a name that is no operation, or that both services have, saying which names are meant.
const Operation& FindOperation(const std::string& name);
const char* ServiceName(ServiceKind service);
// "ShareClient::SendFile" for share.SendFile.DataBean.
std::string ClientFunction(const Operation& operation);

} // namespace Zelkon
} // namespace OHOS

#endif // OPERATION_H
