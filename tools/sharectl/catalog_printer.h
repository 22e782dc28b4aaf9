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
 * What list, describe and call print, from the operation table: for people as lines, for scripts as JSON.
 */
#ifndef CATALOG_PRINTER_H
#define CATALOG_PRINTER_H

#include "operation.h"
#include "output.h"

namespace OHOS {
namespace Zelkon {

void PrintOperationList(Output& out);
void PrintOperationDescription(const Operation& operation, Output& out);
void PrintCallOutcome(const Operation& operation, const CallOutcome& outcome, Output& out);

} // namespace Zelkon
} // namespace OHOS

#endif // CATALOG_PRINTER_H
