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

#include "parcel_wire.h"

#include "export_table.h"
#include "ipc_log.h"
#include "parcel_records.h"
#include "session_proxy.h"
#include "unique_fd.h"

namespace OHOS {
namespace {
using ObjectKind = IpcFrame::ObjectKind;

// The table entry of one object for the peer of the session; false if it cannot travel.
bool Describe(const sptr<IRemoteObject>& object, Session& to, IpcFrame::Object& entry)
{
    entry.descriptor = object->GetObjectDescriptor();
    if (entry.descriptor.size() > IpcFrame::MAX_DESCRIPTOR_UNITS) {
        IPC_HOST_LOGE("descriptor of %{public}zu units is too long to travel", entry.descriptor.size());
        return false;
    }
    if (!object->IsProxyObject()) {
        entry.kind = ObjectKind::EXPORTED;
        entry.value = ExportTable::OfProcess().Export(object, to.Serial());
        return true;
    }
    const ImportedHandle* imported = SessionProxy::ImportedOf(object.GetRefPtr());
    if (imported == nullptr || imported->session == nullptr) {
        IPC_HOST_LOGE("a %{public}s object cannot go to another process",
                      imported == nullptr ? "in-process remote" : "dead");
        return false;
    }
    entry.value = imported->handle;
    if (imported->session->PeerAddress() == to.PeerAddress()) {
        entry.kind = ObjectKind::RETURNED;
        entry.descriptor.clear();
        return true;
    }
    entry.kind = ObjectKind::FOREIGN;
    entry.address = imported->session->PeerAddress();
    if (!SessionProxy::Grant(imported->session, imported->handle, to.PeerAddress())) {
        IPC_HOST_LOGE("pid %{public}d did not let handle %{public}llu go on to pid %{public}d",
                      imported->session->PeerPid(), static_cast<unsigned long long>(imported->handle), to.PeerPid());
        return false;
    }
    return true;
}
} // namespace

int ParcelWire::ToFrame(const MessageParcel& parcel, Session& to, IpcFrame& frame, std::vector<uint8_t>& bytes,
                        std::vector<int>& fds)
{
    bool travels = parcel.GetDataSize() <= IpcFrame::MAX_DATA_SIZE;
    for (const ParcelRecord& record : ParcelRecords::Of(parcel)) {
        IpcFrame::Object entry;
        entry.offset = static_cast<uint32_t>(record.offset);
        if (record.object == nullptr) {
            entry.kind = ObjectKind::DESCRIPTOR;
            entry.value = fds.size();
            fds.push_back(record.fd);
        } else if (!Describe(record.object, to, entry)) {
            travels = false;
            break;
        }
        frame.objects.push_back(std::move(entry));
    }
    if (!travels || fds.size() > IpcFrame::MAX_FDS) {
        IPC_HOST_LOGE("a parcel of %{public}zu bytes and %{public}zu descriptors cannot go to pid %{public}d",
                      parcel.GetDataSize(), fds.size(), to.PeerPid());
        Unexport(frame, to);
        frame.objects.clear();
        fds.clear();
        return ERR_FLATTEN_OBJECT;
    }
    bytes = frame.Encode(reinterpret_cast<const uint8_t*>(parcel.GetData()), parcel.GetDataSize(), fds.size());
    return ERR_NONE;
}

void ParcelWire::Unexport(const IpcFrame& frame, Session& to)
{
    for (const IpcFrame::Object& entry : frame.objects) {
        if (entry.kind == ObjectKind::EXPORTED) {
            ExportTable::OfProcess().Release(entry.value, to.Serial());
        }
    }
}

bool ParcelWire::ToParcel(IpcFrame& frame, const std::shared_ptr<Session>& from, const Importer& import,
                          MessageParcel& parcel)
{
    std::vector<ParcelRecord> records;
    bool known = true;
    const FrameSocket::Clock::time_point deadline = FrameSocket::Clock::now() + IMPORT_WAIT;
    // Every entry is taken, even after an unknown one, so that every carried reference is kept or given back.
    for (const IpcFrame::Object& entry : frame.objects) {
        ParcelRecord record{entry.offset, nullptr, INVALID_FD};
        switch (entry.kind) {
        case ObjectKind::DESCRIPTOR:
            record.fd = frame.fds[entry.value].Get();
            break;
        case ObjectKind::RETURNED:
            record.object = ExportTable::OfProcess().Find(entry.value, from->Serial());
            break;
        case ObjectKind::EXPORTED:
        case ObjectKind::FOREIGN:
            record.object = import(from, entry, deadline);
            break;
        }
        if (entry.kind == ObjectKind::RETURNED && record.object == nullptr) {
            IPC_HOST_LOGE("pid %{public}d named handle %{public}llu, which this process did not give it",
                          from->PeerPid(), static_cast<unsigned long long>(entry.value));
            known = false;
        }
        records.push_back(std::move(record));
    }
    if (!known) {
        return false;
    }
    // The parcel owns the descriptors from here on.
    for (UniqueFd& fd : frame.fds) {
        fd.Release();
    }
    parcel.senderPid_ = from->PeerPid();
    return ParcelRecords::Append(parcel, frame.MutableData(), frame.DataSize(), std::move(records));
}

} // namespace OHOS
