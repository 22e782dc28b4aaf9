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
 * Makes a row of the operation table from the client function that carries the operation: the row names the
 * function's parameters, and their types come from its signature. The request is described from the arguments in
 * their order, unless the row says otherwise; the call reads each argument, calls the function and decodes the
 * result as the row's kind of result says.
 */
#ifndef OPERATION_BINDING_H
#define OPERATION_BINDING_H

#include <cstdint>
#include <functional>
#include <string>
#include <tuple>
#include <type_traits>
#include <utility>
#include <vector>

#include "call_arguments.h"
#include "client_parameter.h"
#include "operation.h"
#include "share_client.h"
#include "share_manager_client.h"

namespace OHOS {
namespace Zelkon {

// What a client function returns, as describe shows it, how the reply carries it, and what call makes of it.
template <typename Result>
struct ResultKind {
    const char* type;
    const char* reply;
    std::function<CallOutcome(const Result& result)> decode;
};

// A function that returns nothing: its reply is not read.
template <>
struct ResultKind<void> {
    const char* type;
    const char* reply;
    std::function<CallOutcome()> decode;
};

// "publishId: int32, listener: remote object", or "nothing".
std::string RequestText(const std::vector<Argument>& arguments);

template <typename Client>
constexpr ServiceKind ServiceOf()
{
    static_assert(std::is_same_v<Client, ShareClient> || std::is_same_v<Client, ShareManagerClient>);
    return std::is_same_v<Client, ShareClient> ? ServiceKind::SHARE : ServiceKind::MANAGER;
}

// `names` name the function's parameters, one each, as `call` takes them.
template <typename Result, typename Client, typename... Parameters, typename... Names>
Operation Bind(const ResultKind<Result>& kind, const char* name, uint32_t code,
               Result (Client::*function)(Parameters...), Names... names)
{
    static_assert(sizeof...(Names) == sizeof...(Parameters), "one name for each parameter of the client function");
    std::vector<Argument> arguments{ClientParameter<std::decay_t<Parameters>>::Describe(names)...};
    std::string request = RequestText(arguments);
    const auto call = [kind, function, names...](const CallArguments& given, LocalRemotes& remotes) {
        std::tuple<std::decay_t<Parameters>...> values{
            ClientParameter<std::decay_t<Parameters>>::Supply(given, names, remotes)...};
        const auto invoke = [&values, function] {
            return std::apply([function](auto&... value) { return (Client::GetInstance().*function)(value...); },
                              values);
        };
        if constexpr (std::is_void_v<Result>) {
            invoke();
            return kind.decode();
        } else {
            return kind.decode(invoke());
        }
    };
    return {name, ServiceOf<Client>(), code, std::move(arguments), kind.type, std::move(request), kind.reply, call};
}

} // namespace Zelkon
} // namespace OHOS

#endif // OPERATION_BINDING_H
