/*
 * A request as the service reads it: the test lists the fields it expects after the interface token, and the
 * scripted service reads them off the request with the parcel's own primitives, noting every field that differs
 * and any bytes left over. Booleans and 8-bit values travel as whole words, so a word covers them.
 */
#ifndef REQUEST_FIELD_H
#define REQUEST_FIELD_H

#include <cstdint>
#include <string>
#include <utility>
#include <vector>

#include "message_parcel.h"

namespace OHOS {
namespace Zelkon {

struct RequestField {
    enum class Kind { WORD, TEXT, OBJECT };
    Kind kind;
    int32_t word;
    std::string text;
};

inline RequestField Word(int32_t value)
{
    return {RequestField::Kind::WORD, value, {}};
}

inline RequestField Text(std::string value)
{
    return {RequestField::Kind::TEXT, 0, std::move(value)};
}

// A listener or callback: any remote object.
inline RequestField Object()
{
    return {RequestField::Kind::OBJECT, 0, {}};
}

inline bool ReadsAs(MessageParcel& data, const RequestField& field)
{
    switch (field.kind) {
    case RequestField::Kind::WORD: {
        int32_t value = 0;
        return data.ReadInt32(value) && value == field.word;
    }
    case RequestField::Kind::TEXT: {
        std::string value;
        return data.ReadString(value) && value == field.text;
    }
    case RequestField::Kind::OBJECT:
        return data.ReadRemoteObject() != nullptr;
    }
    return false;
}

// What differs from the expected token and fields; empty when the request is exactly that.
inline std::vector<std::string> Mismatches(MessageParcel& data, const std::u16string& token,
                                           const std::vector<RequestField>& fields)
{
    std::vector<std::string> mismatches;
    if (data.ReadInterfaceToken() != token) {
        mismatches.push_back("token");
    }
    for (size_t i = 0; i < fields.size(); ++i) {
        if (!ReadsAs(data, fields[i])) {
            mismatches.push_back("field " + std::to_string(i));
        }
    }
    if (data.GetReadableBytes() != 0) {
        mismatches.push_back("bytes left over");
    }
    return mismatches;
}

} // namespace Zelkon
} // namespace OHOS

#endif // REQUEST_FIELD_H
