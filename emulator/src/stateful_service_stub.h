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
 * An emulated service with its state: the state's Dump is the service's, and a request that needs the state alone
 * is handled by a free function given the state, written once where it is defined.
 */
#ifndef STATEFUL_SERVICE_STUB_H
#define STATEFUL_SERVICE_STUB_H

#include <cstdint>
#include <string>
#include <utility>

#include <nlohmann/json.hpp>

#include "emulated_service_stub.h"
#include "reply_writer.h"
#include "request_reader.h"

namespace OHOS {
namespace Zelkon {

template <typename State>
class StatefulServiceStub : public EmulatedServiceStub {
protected:
    template <typename... StateArguments>
    StatefulServiceStub(const std::u16string& token, std::string serviceName, int32_t systemAbilityId,
                        ServiceChannels channels, StateArguments&&... stateArguments) :
        EmulatedServiceStub(token, std::move(serviceName), systemAbilityId, std::move(channels)),
        state_(std::forward<StateArguments>(stateArguments)...)
    {
    }

    using EmulatedServiceStub::Add;

    void Add(uint32_t code, const char* operation, void (*handle)(State&, RequestReader&, ReplyWriter&))
    {
        Add(code, operation,
            [this, handle](RequestReader& reader, ReplyWriter& writer) { handle(state_, reader, writer); });
    }

    // A request that carries one int32 setting: the state keeps it, and the reply is true.
    void AddSetting(uint32_t code, const char* operation, const char* field, void (State::*keep)(int32_t))
    {
        Add(code, operation, [this, field, keep](RequestReader& reader, ReplyWriter& writer) {
            int32_t value = 0;
            if (reader.Int32(field, value)) {
                (state_.*keep)(value);
                writer.Bool("result", true);
            }
        });
    }

    nlohmann::ordered_json DumpState() override { return state_.Dump(); }

    State state_;
};

} // namespace Zelkon
} // namespace OHOS

#endif // STATEFUL_SERVICE_STUB_H
