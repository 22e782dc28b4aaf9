#include "share_manager_state.h"

#include <algorithm>

namespace OHOS {
namespace Zelkon {
namespace {
constexpr int32_t PHONE_TYPE = 14;
constexpr int32_t TABLET_TYPE = 17;
constexpr int32_t PC_TYPE = 12;
constexpr int32_t STATE_SENDING = 1;
// Large enough that the reply carries it in shared memory, as on a device.
constexpr size_t PREVIEW_LINES = 1200;

std::string MakePreviewData()
{
    std::string text;
    for (size_t line = 1; line <= PREVIEW_LINES; ++line) {
        text += "preview line " + std::to_string(line) + ": holiday-photos.zip\n";
    }
    return text;
}

UserEntry MakeUser(const std::string& name, const std::string& account, int32_t type, const std::string& id,
                   int32_t nearbyVersion, const std::string& contactName)
{
    UserEntry user;
    user.deviceName = name;
    user.norvaneIdName = account;
    user.avatar = "data:image/png;base64,iVBORw0KGgo" + std::string(512, 'A') + id;
    user.colorId = static_cast<int32_t>(id.size() % 7);
    user.deviceType = type;
    user.deviceId = id;
    user.nearbyVersion = nearbyVersion;
    user.lastSharedTime = 1700000000000;
    user.isSameAccount = account == "me@example.com";
    user.contact = {1, contactName, "photo-of-" + contactName};
    user.isOHDevice = true;
    user.deviceFounder = 0x80000001u;
    return user;
}
} // namespace

ShareManagerState::ShareManagerState() :
    users_{
        MakeUser("Alex's phone", "alex@example.com", PHONE_TYPE, "dev-1001-phone", 9, "Alex"),
        MakeUser("Sam's tablet", "sam@example.com", TABLET_TYPE, "dev-1002-tablet", 10, "Sam"),
        MakeUser("My laptop", "me@example.com", PC_TYPE, "dev-1003-laptop", 12, "Me"),
    },
    previewData_(MakePreviewData()), account_{"acc-20001", "9f2c4e1ab7d35508", 1, 20010042, "Robin", "avatar-of-robin"}
{
}

void ShareManagerState::SetEnable(int32_t state, bool enable)
{
    std::lock_guard<std::mutex> lock(mutex_);
    enableState_ = state;
    enabled_ = enable;
}

bool ShareManagerState::IsEnabled()
{
    std::lock_guard<std::mutex> lock(mutex_);
    return enabled_;
}

int32_t ShareManagerState::EnableState()
{
    std::lock_guard<std::mutex> lock(mutex_);
    return enableState_;
}

bool ShareManagerState::AddCallback(CallbackKind kind, const sptr<IRemoteObject>& callback)
{
    std::lock_guard<std::mutex> lock(mutex_);
    return callbacks_.Add(kind, callback);
}

bool ShareManagerState::RemoveCallback(CallbackKind kind, const sptr<IRemoteObject>& callback)
{
    std::lock_guard<std::mutex> lock(mutex_);
    return callbacks_.Remove(kind, callback);
}

bool ShareManagerState::HasCallbacks(CallbackKind kind)
{
    std::lock_guard<std::mutex> lock(mutex_);
    return callbacks_.Count(kind) > 0;
}

bool ShareManagerState::SetDiscovering(bool discovering)
{
    std::lock_guard<std::mutex> lock(mutex_);
    return std::exchange(discovering_, discovering) != discovering;
}

bool ShareManagerState::SetConnected(bool connected)
{
    std::lock_guard<std::mutex> lock(mutex_);
    return std::exchange(connected_, connected) != connected;
}

std::vector<UserEntry> ShareManagerState::AllUsers()
{
    std::lock_guard<std::mutex> lock(mutex_);
    return users_;
}

std::vector<UserEntry> ShareManagerState::SendingUsers()
{
    std::lock_guard<std::mutex> lock(mutex_);
    std::vector<UserEntry> sending;
    for (const UserEntry& user : users_) {
        auto transfer = sending_.find(user.deviceId);
        if (transfer != sending_.end()) {
            UserEntry shown = user;
            shown.stateCode = STATE_SENDING;
            shown.eventCode = static_cast<int32_t>(transfer->second.files);
            sending.push_back(shown);
        }
    }
    return sending;
}

const UserEntry* ShareManagerState::FindUser(const std::string& deviceId) const
{
    auto it =
        std::find_if(users_.begin(), users_.end(), [&](const UserEntry& user) { return user.deviceId == deviceId; });
    return it == users_.end() ? nullptr : &*it;
}

bool ShareManagerState::IsKnownUser(const std::string& deviceId)
{
    std::lock_guard<std::mutex> lock(mutex_);
    return FindUser(deviceId) != nullptr;
}

bool ShareManagerState::Prepare(const std::string& deviceId)
{
    std::lock_guard<std::mutex> lock(mutex_);
    if (!enabled_ || FindUser(deviceId) == nullptr) {
        return false;
    }
    prepared_.insert(deviceId);
    return true;
}

bool ShareManagerState::StartSending(const std::string& deviceId, const TransferPayload& payload)
{
    std::lock_guard<std::mutex> lock(mutex_);
    if (!enabled_ || prepared_.count(deviceId) == 0) {
        return false;
    }
    sending_[deviceId] = payload;
    return true;
}

bool ShareManagerState::CancelSending(const std::string& deviceId)
{
    std::lock_guard<std::mutex> lock(mutex_);
    prepared_.erase(deviceId);
    return sending_.erase(deviceId) > 0;
}

bool ShareManagerState::AddEvent(const std::string& event)
{
    std::lock_guard<std::mutex> lock(mutex_);
    return !event.empty() && events_.insert(event).second;
}

bool ShareManagerState::RemoveEvent(const std::string& event)
{
    std::lock_guard<std::mutex> lock(mutex_);
    return events_.erase(event) > 0;
}

bool ShareManagerState::AddShareEvent(int32_t eventType, int32_t eventId)
{
    std::lock_guard<std::mutex> lock(mutex_);
    return shareEvents_.emplace(eventType, eventId).second;
}

bool ShareManagerState::RemoveShareEvent(int32_t eventType, int32_t eventId)
{
    std::lock_guard<std::mutex> lock(mutex_);
    return shareEvents_.erase({eventType, eventId}) > 0;
}

std::string ShareManagerState::PreviewData()
{
    return previewData_;
}

AccountEntry ShareManagerState::Account()
{
    std::lock_guard<std::mutex> lock(mutex_);
    return account_;
}

void ShareManagerState::SetAccountPermission(int32_t permission)
{
    // The account's status is what the user allowed the share service to do with it.
    std::lock_guard<std::mutex> lock(mutex_);
    account_.status = permission;
}

} // namespace Zelkon
} // namespace OHOS
