/*
 * What the benchmarks share: the size of a written record, and the two services registered with the host system
 * ability manager, answered by stubs that cost as little as possible.
 */
#ifndef BENCHMARK_FIXTURES_H
#define BENCHMARK_FIXTURES_H

#include <cstddef>

#include "iremote_object.h"
#include "share_device_info.h"

namespace OHOS {
namespace Zelkon {

// The bytes that the record's writer puts in a parcel.
size_t WrittenSize(const ShareDeviceInfo& device);

// The share service, registered once, answering every request with true at once; the remote object that the
// share client talks to. ShareClient is connected to it on return.
sptr<IRemoteObject> FastShareService();

// The share manager service, registered once, answering every request with true after 2 ms.
void SlowManagerService();

} // namespace Zelkon
} // namespace OHOS

#endif // BENCHMARK_FIXTURES_H
