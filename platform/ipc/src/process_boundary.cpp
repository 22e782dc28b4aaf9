#include "process_boundary.h"

#include <cstring>
#include <map>
#include <mutex>
#include <unistd.h>
#include <vector>

#include "ipc_log.h"
#include "ipc_object_proxy.h"

namespace OHOS {
namespace {
constexpr uint32_t BINDER_TYPE_BINDER = 0x73622a85;
constexpr uint32_t BINDER_TYPE_HANDLE = 0x73682a85;
constexpr size_t RECORD_SIZE = 24;
constexpr size_t RECORD_VALUE_OFFSET = 8;

// The remote object standing for each local object that crossed a boundary, so that the other side sees one
// identity per object. Never destroyed: objects may cross while statics are torn down.
class ForwarderTable {
public:
    static ForwarderTable& Instance()
    {
        static ForwarderTable* instance = new ForwarderTable();
        return *instance;
    }

    sptr<IRemoteObject> ForwarderOf(const sptr<IRemoteObject>& local)
    {
        // References taken under the lock are dropped after it: dropping the last one runs destructors.
        std::vector<sptr<IPCObjectProxy>> held;
        std::lock_guard<std::mutex> lock(mutex_);
        auto it = forwarders_.find(local.GetRefPtr());
        if (it != forwarders_.end()) {
            held.push_back(it->second.promote());
            if (held.back() != nullptr && !held.back()->IsObjectDead()) {
                return held.back();
            }
        }
        ForgetExpired(held);
        sptr<IPCObjectProxy> forwarder = new IPCObjectProxy(local);
        forwarders_[local.GetRefPtr()] = forwarder;
        return forwarder;
    }

private:
    void ForgetExpired(std::vector<sptr<IPCObjectProxy>>& held)
    {
        for (auto it = forwarders_.begin(); it != forwarders_.end();) {
            held.push_back(it->second.promote());
            it = held.back() == nullptr ? forwarders_.erase(it) : std::next(it);
        }
    }

    std::mutex mutex_;
    std::map<const IRemoteObject*, wptr<IPCObjectProxy>> forwarders_;
};

void PutWord(std::vector<uint8_t>& bytes, size_t offset, const void* value, size_t size)
{
    std::memcpy(bytes.data() + offset, value, size);
}
} // namespace

sptr<IRemoteObject> ProcessBoundary::Translate(const sptr<IRemoteObject>& object)
{
    if (object == nullptr || object->IsProxyObject()) {
        return object;
    }
    return ForwarderTable::Instance().ForwarderOf(object);
}

bool ProcessBoundary::Copy(const MessageParcel& from, MessageParcel& to)
{
    const size_t size = from.GetDataSize();
    const size_t base = to.GetWritePosition();
    const auto* data = reinterpret_cast<const uint8_t*>(from.GetData());
    std::vector<uint8_t> bytes(data, data + size);
    for (const auto& [offset, carried] : from.carried_) {
        // A record overwritten after a rewind is plain data now; one cut off by SetDataSize does not travel.
        if (!from.HasObjectAt(offset) || offset + RECORD_SIZE > size) {
            continue;
        }
        MessageParcel::Carried copy{carried.kind, nullptr, INVALID_FD};
        if (carried.kind == MessageParcel::CarriedKind::OBJECT) {
            copy.object = Translate(carried.object);
            const uint32_t type = copy.object->IsProxyObject() ? BINDER_TYPE_HANDLE : BINDER_TYPE_BINDER;
            PutWord(bytes, offset, &type, sizeof(type));
        } else {
            copy.fd = dup(carried.fd);
            if (copy.fd < 0) {
                IPC_HOST_LOGE("dup of a carried fd failed, errno %{public}d", errno);
                return false;
            }
            const uint64_t value = static_cast<uint64_t>(copy.fd);
            PutWord(bytes, offset + RECORD_VALUE_OFFSET, &value, sizeof(value));
        }
        to.carried_[base + offset] = copy;
        to.AddObject(base + offset, RECORD_SIZE);
    }
    if (size == 0) {
        return true;
    }
    // The receiving side is not bound by the default maximum: whatever the sender could write arrives.
    if (base + size > to.GetMaxCapacity()) {
        to.SetMaxCapacity(base + size);
    }
    if (!to.WriteBuffer(bytes.data(), size)) {
        IPC_HOST_LOGE("copy of %{public}zu bytes failed", size);
        return false;
    }
    return true;
}

} // namespace OHOS
