/*
 * How traced values look: strings quoted and shortened, remote objects by their interface.
 */
#ifndef FIELD_TEXT_H
#define FIELD_TEXT_H

#include <string>

#include "iremote_object.h"

namespace OHOS {
namespace Zelkon {

// Long texts keep their head and show their length.
std::string QuotedText(const std::string& text);
std::string ObjectText(const sptr<IRemoteObject>& object);

} // namespace Zelkon
} // namespace OHOS

#endif // FIELD_TEXT_H
