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
 * The one harness of the fuzzers. A record fuzzer reads the input as a record and checks that whatever the reader
 * accepted is stable under the record's own writer and reader (a field that the two see differently shows up as a
 * difference in bytes). A reply fuzzer hands the input to a proxy as the reply of one of its operations: the first
 * byte picks the operation and, by its top bit, puts a remote object before the reply, since fuzzed bytes alone can
 * never carry one.
 */
#ifndef FUZZ_HARNESS_H
#define FUZZ_HARNESS_H

#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <string>

#include "iremote_stub.h"
#include "parcel.h"
#include "reply_stub.h"

namespace OHOS {
namespace Zelkon {

// A parcel that holds the bytes, as a received reply would.
template <typename ParcelType>
void FillParcel(ParcelType& parcel, const uint8_t* data, size_t size)
{
    // A buffer of zero bytes is refused by the parcel: an empty input stays an empty parcel.
    if (size > 0 && !parcel.WriteBuffer(data, size)) {
        abort();
    }
}

// Aborts (a finding) when writing the record and reading it back does not give the same record.
template <typename Record>
void CheckRewriteStable(const Record& record)
{
    const auto bytesOf = [](const Record& written) {
        Parcel parcel;
        if (!written.Marshalling(parcel)) {
            abort();
        }
        return std::string(reinterpret_cast<const char*>(parcel.GetData()), parcel.GetDataSize());
    };
    const std::string written = bytesOf(record);
    Parcel parcel;
    FillParcel(parcel, reinterpret_cast<const uint8_t*>(written.data()), written.size());
    Record reread;
    if (!reread.ReadFromParcel(parcel) || parcel.GetReadableBytes() != 0 || bytesOf(reread) != written) {
        abort();
    }
}

template <typename Record>
int FuzzRecord(const uint8_t* data, size_t size)
{
    Parcel parcel;
    FillParcel(parcel, data, size);
    Record record;
    if (record.ReadFromParcel(parcel)) {
        CheckRewriteStable(record);
    }
    return 0;
}

// A caller's listener or callback: the proxies only put its remote object on the wire.
template <typename Interface>
sptr<Interface> FuzzListener()
{
    class Listener : public IRemoteStub<Interface> {};
    return sptr<Interface>(new Listener());
}

// The proxy that hears the reply, the operation the input picked, and the reply's own bytes.
template <typename Proxy>
struct FuzzedReply {
    Proxy& proxy;
    size_t operation;
    const uint8_t* data;
    size_t size;
};

template <typename Proxy>
FuzzedReply<Proxy> AnswerWith(const uint8_t* data, size_t size, size_t operations)
{
    constexpr uint8_t LEADING_OBJECT = 0x80;
    static const sptr<ReplyStub> stub(new ReplyStub(Proxy::GetDescriptor()));
    static const sptr<Proxy> proxy(new Proxy(stub));
    if (size == 0) {
        stub->AnswerWith(data, 0, false);
        return {*proxy, 0, data, 0};
    }
    stub->AnswerWith(data + 1, size - 1, (data[0] & LEADING_OBJECT) != 0);
    return {*proxy, static_cast<size_t>(data[0] & ~LEADING_OBJECT) % operations, data + 1, size - 1};
}

} // namespace Zelkon
} // namespace OHOS

#endif // FUZZ_HARNESS_H
