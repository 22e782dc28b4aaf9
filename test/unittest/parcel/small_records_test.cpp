// The account, contact and permanent device records, and the records whose layouts the application supplies.
#include <fcntl.h>
#include <gtest/gtest.h>
#include <unistd.h>

#include "bytes_info.h"
#include "data_bean.h"
#include "hilog/log_capture.h"
#include "parcel_test_util.h"
#include "permanent_device_info.h"
#include "send_bean.h"
#include "share_account_info.h"
#include "share_device.h"
#include "transmit_param.h"

namespace OHOS {
namespace Zelkon {
namespace {

using HiviewDFX::ScopedLogCapture;

ShareAccountInfo BoundaryAccount()
{
    ShareAccountInfo account;
    account.norvaneAccountID = "1234567890";
    account.norvaneAccountIDHash = "5FECEB66FFC86F";
    account.status = INT32_MIN;
    account.callingUid = 20010042;
    account.nickName = "Ada";
    // The last string ends on a word boundary: a reply cut inside its padding would still read.
    account.avatar = std::string(1003, 'z');
    return account;
}

// Where each account field starts on the wire and what the writer and the reader log when it fails there.
struct AccountField {
    size_t offset;
    std::string writeFailure;
    std::string readFailure;
};

// norvaneAccountID "1234567890" (16), hash (20), two words (8), nickName "Ada" (8), avatar.
const std::vector<AccountField> ACCOUNT_FIELDS = {
    {0, "WriteString norvaneAccountID failed.", "ReadString norvaneAccountID failed."},
    {16, "WriteString norvaneAccountIDHash failed.", "ReadString norvaneAccountIDHash failed."},
    {36, "WriteInt32 status failed.", "ReadInt32 status failed."},
    {40, "WriteInt32 callingUid failed.", "ReadInt32 callingUid failed."},
    {44, "WriteString nickName failed.", "ReadString nickName failed."},
    {52, "WriteString avatar failed.", "ReadString avatar failed."},
};

TEST(ShareAccountInfoTest, DefaultsToNoAccountAndRoundTrips)
{
    const ShareAccountInfo empty;
    EXPECT_TRUE(empty.norvaneAccountID.empty() && empty.norvaneAccountIDHash.empty() && empty.nickName.empty() &&
                empty.avatar.empty());
    EXPECT_EQ(empty.status, 0);
    EXPECT_EQ(empty.callingUid, -1);

    for (const ShareAccountInfo& account : {empty, BoundaryAccount()}) {
        MessageParcel parcel;
        ASSERT_TRUE(account.WriteToParcel(parcel));
        ShareAccountInfo read;
        read.callingUid = 7;
        ASSERT_TRUE(read.ReadFromParcel(parcel));
        EXPECT_EQ(read.norvaneAccountID, account.norvaneAccountID);
        EXPECT_EQ(read.norvaneAccountIDHash, account.norvaneAccountIDHash);
        EXPECT_EQ(read.status, account.status);
        EXPECT_EQ(read.callingUid, account.callingUid);
        EXPECT_EQ(read.nickName, account.nickName);
        EXPECT_EQ(read.avatar, account.avatar);
    }
}

TEST(ShareAccountInfoTest, LogsTheFieldWhereAReplyEnds)
{
    MessageParcel full;
    ASSERT_TRUE(BoundaryAccount().WriteToParcel(full));
    const std::vector<uint8_t> bytes = BytesOf(full);
    for (const AccountField& field : ACCOUNT_FIELDS) {
        SCOPED_TRACE(field.readFailure);
        MessageParcel cut;
        LoadBytes(cut, bytes, field.offset);
        ScopedLogCapture capture;
        ShareAccountInfo read;
        EXPECT_FALSE(read.ReadFromParcel(cut));
        const auto lines = capture.Lines();
        ASSERT_EQ(lines.size(), 1u);
        EXPECT_EQ(lines[0].domain, 0xD004613u);
        EXPECT_TRUE(capture.Contains("ShareStub", field.readFailure));
    }
    for (size_t length = 0; length < bytes.size(); ++length) {
        MessageParcel cut;
        LoadBytes(cut, bytes, length);
        ShareAccountInfo read;
        EXPECT_FALSE(read.ReadFromParcel(cut)) << length;
    }
}

TEST(ShareAccountInfoTest, LogsTheFieldThatDoesNotFitAndNeverRaisesTheLimit)
{
    const ShareAccountInfo account = BoundaryAccount();
    for (const AccountField& field : ACCOUNT_FIELDS) {
        SCOPED_TRACE(field.writeFailure);
        MessageParcel parcel;
        FillLeaving(parcel, field.offset);
        const size_t maxCapacity = parcel.GetMaxCapacity();
        ScopedLogCapture capture;
        EXPECT_FALSE(account.WriteToParcel(parcel));
        EXPECT_EQ(parcel.GetMaxCapacity(), maxCapacity);
        const auto lines = capture.Lines();
        ASSERT_EQ(lines.size(), 1u);
        EXPECT_EQ(lines[0].domain, 0xD004612u);
        EXPECT_TRUE(capture.Contains("ShareProxy", field.writeFailure));
    }
}

TEST(ContactInfoTest, RoundTripsAndFailsSilentlyOnACutReply)
{
    ContactInfo contact;
    contact.contactKind = INT32_MIN;
    contact.contactName = "\xe8\xae\xbe";
    // Ends on a word boundary, so that every cut loses a byte of the photo or its zero.
    contact.contactPhoto = std::string(250 * 1024 - 1, 'p');
    MessageParcel parcel;
    const size_t before = parcel.GetMaxCapacity();
    ASSERT_TRUE(contact.WriteToParcel(parcel));
    EXPECT_EQ(parcel.GetMaxCapacity(), before + contact.contactPhoto.size());
    ContactInfo read;
    ASSERT_TRUE(read.ReadFromParcel(parcel));
    EXPECT_EQ(read.contactKind, contact.contactKind);
    EXPECT_EQ(read.contactName, contact.contactName);
    EXPECT_EQ(read.contactPhoto, contact.contactPhoto);

    const std::vector<uint8_t> bytes = BytesOf(parcel);
    ScopedLogCapture capture;
    for (size_t length = 0; length < bytes.size(); length += (length < 64 ? 1 : 4093)) {
        MessageParcel cut;
        LoadBytes(cut, bytes, length);
        ContactInfo partial;
        EXPECT_FALSE(partial.ReadFromParcel(cut)) << length;
    }
    EXPECT_TRUE(capture.Lines().empty());
}

TEST(ContactInfoTest, RaisesTheLimitBeforeWritingThePhotoAndKeepsItOnFailure)
{
    ContactInfo contact;
    contact.contactPhoto = std::string(100, 'p');
    MessageParcel parcel;
    // Room for the kind and the empty name only: the photo fails after the raise, without a line.
    FillLeaving(parcel, 12);
    const size_t before = parcel.GetMaxCapacity();
    ScopedLogCapture capture;
    EXPECT_FALSE(contact.WriteToParcel(parcel));
    EXPECT_EQ(parcel.GetMaxCapacity(), before + 100);
    EXPECT_TRUE(capture.Lines().empty());
}

TEST(PermanentDeviceInfoTest, ReadsTheFiveFieldsAndFailsQuietlyWhenCut)
{
    MessageParcel parcel;
    ASSERT_TRUE(parcel.WriteInt32(-5) && parcel.WriteString("Desk PC") && parcel.WriteInt32(12) &&
                parcel.WriteString("udid-77") && parcel.WriteInt64(INT64_MAX));
    PermanentDeviceInfo device;
    ASSERT_TRUE(device.ReadFromParcel(parcel));
    EXPECT_EQ(device.id, -5);
    EXPECT_EQ(device.deviceName, "Desk PC");
    EXPECT_EQ(device.deviceType, 12);
    EXPECT_EQ(device.deviceId, "udid-77");
    EXPECT_EQ(device.timestamp, INT64_MAX);

    const std::vector<uint8_t> bytes = BytesOf(parcel);
    ScopedLogCapture capture;
    for (size_t length = 0; length < bytes.size(); ++length) {
        MessageParcel cut;
        LoadBytes(cut, bytes, length);
        PermanentDeviceInfo partial;
        EXPECT_FALSE(partial.ReadFromParcel(cut)) << length;
    }
    EXPECT_TRUE(capture.Lines().empty());
}

// A record of the application's own layout: WriteToParcel must reach it through the base.
template <typename Record>
class OverriddenRecord : public Record {
public:
    bool Marshalling(Parcel& parcel) const override { return parcel.WriteInt32(0x0DD); }
};

template <typename Record>
void ExpectWriteToParcelReachesTheOverride()
{
    OverriddenRecord<Record> record;
    const Record& base = record;
    MessageParcel parcel;
    ASSERT_TRUE(base.WriteToParcel(parcel));
    EXPECT_EQ(parcel.GetDataSize(), sizeof(int32_t));
    EXPECT_EQ(parcel.ReadInt32(), 0x0DD);
}

TEST(ParcelableRecordTest, WriteToParcelCallsTheDynamicTypesMarshalling)
{
    ExpectWriteToParcelReachesTheOverride<SendBean>();
    ExpectWriteToParcelReachesTheOverride<DataBean>();
    ExpectWriteToParcelReachesTheOverride<BytesInfo>();
    ExpectWriteToParcelReachesTheOverride<ShareDevice>();
    ExpectWriteToParcelReachesTheOverride<ContactInfo>();
    ExpectWriteToParcelReachesTheOverride<ShareDeviceInfo>();
    ExpectWriteToParcelReachesTheOverride<ShareAccountInfo>();
}

TEST(HostDefaultLayoutTest, SendBeanWritesPreviewAndFiles)
{
    SendBean bean;
    bean.previewText = "two files";
    bean.files = {{"file://docs/a", "a", 10}, {"file://docs/b", "b", INT64_MAX}};
    MessageParcel parcel;
    ASSERT_TRUE(bean.WriteToParcel(parcel));
    EXPECT_EQ(parcel.ReadString(), "two files");
    ASSERT_EQ(parcel.ReadUint32(), 2u);
    for (const FileItem& file : bean.files) {
        EXPECT_EQ(parcel.ReadString(), file.uri);
        EXPECT_EQ(parcel.ReadString(), file.name);
        EXPECT_EQ(parcel.ReadInt64(), file.size);
    }
    EXPECT_EQ(parcel.GetReadableBytes(), 0u);
}

TEST(HostDefaultLayoutTest, DataBeanCarriesItsDescriptorOnlyInAMessageParcel)
{
    const int fd = open("/dev/null", O_RDONLY);
    ASSERT_GE(fd, 0);
    DataBean bean;
    bean.fileName = "photo.jpg";
    bean.fileSize = 1 << 20;
    bean.fd = fd;
    MessageParcel parcel;
    ASSERT_TRUE(bean.WriteToParcel(parcel));
    EXPECT_EQ(parcel.ReadString(), "photo.jpg");
    EXPECT_EQ(parcel.ReadInt64(), 1 << 20);
    const int received = parcel.ReadFileDescriptor();
    EXPECT_GE(received, 0);
    close(received);
    Parcel plain;
    EXPECT_FALSE(bean.WriteToParcel(plain));
    DataBean noFile;
    EXPECT_FALSE(noFile.WriteToParcel(parcel));
    close(fd);
}

TEST(HostDefaultLayoutTest, BytesInfoAndShareDeviceWriteTheirFields)
{
    BytesInfo bytes;
    bytes.mimeType = "text/plain";
    bytes.bytes = std::string("a\0b", 3);
    ShareDevice device;
    device.deviceId = "udid";
    device.deviceName = "Phone";
    device.nbVersion_ = 8;
    device.ohFlag_ = 0;
    MessageParcel parcel;
    ASSERT_TRUE(bytes.WriteToParcel(parcel) && device.WriteToParcel(parcel));
    EXPECT_EQ(parcel.ReadString(), "text/plain");
    EXPECT_EQ(parcel.ReadString(), bytes.bytes);
    EXPECT_EQ(parcel.ReadString(), "udid");
    EXPECT_EQ(parcel.ReadString(), "Phone");
    EXPECT_EQ(parcel.ReadInt32(), 8);
    EXPECT_EQ(parcel.ReadInt32(), 0);
    EXPECT_EQ(device.GetNearbyVersion(), 8);
    EXPECT_EQ(device.GetOHFlag(), 0);
}

TEST(TransmitParamTest, DefaultsToNoCallbackAndTheDefaultEvent)
{
    const TransmitParam param;
    EXPECT_TRUE(param.deviceId.empty());
    EXPECT_EQ(param.timeout, 0);
    EXPECT_EQ(param.transCallback, nullptr);
    EXPECT_EQ(param.transmitEventType, TRANSMIT_EVENT_DEFAULT);
    static_assert(sizeof(TransmitEventType) == 1, "the event type travels as an int8");
}

} // namespace
} // namespace Zelkon
} // namespace OHOS
