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
 * through the library and decodes the result. list, describe and call all read it; the rows are bound from the
 * clients' functions (operation_binding.h). The emulator decodes the wire on its own, and the sharectl tests check
 * each row's code against the request that the emulator traced.
 */
#ifndef OPERATION_H
#define OPERATION_H

#include <cstdint>
#include <functional>
#include <string>
#include <vector>

#include <nlohmann/json.hpp>

#include "demo_remotes.h"

namespace OHOS {
namespace Zelkon {

enum class ServiceKind { SHARE, MANAGER };

// An argument of an operation, as describe shows it and call reads it: one parameter of the client function.
struct Argument {
    std::string name;
    // "int32", "ShareDeviceInfo", or the interface of a local stub.
    std::string type;
    // A listener or callback: sharectl passes its own local stub, and the argument takes no value.
    bool localStub;
    // A record's fields with their types; null for any other argument.
    nlohmann::ordered_json schema;
    // How the request carries it: "int32", "remote object", "SendBean (previewText: string, ...)".
    std::string wire;
    // What describe adds to the type, or empty.
    std::string note;
    // Reads the VALUE of NAME=VALUE strictly, as JSON; throws UsageError. Null for a local stub.
    nlohmann::json (*read)(const std::string& text, const std::string& name);
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
    std::function<CallOutcome(const CallArguments& arguments, LocalRemotes& remotes)> call;
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
